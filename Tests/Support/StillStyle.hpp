#pragma once

#include <QApplication>
#include <QProxyStyle>

/// While it lives, the application's style is one of a desktop that wants no animation.
class StillStyle {
public:
    StillStyle() { QApplication::setStyle(new Still); }
    ~StillStyle() { QApplication::setStyle(QStringLiteral("Fusion")); }
    StillStyle(const StillStyle&) = delete;
    StillStyle& operator=(const StillStyle&) = delete;

private:
    class Still : public QProxyStyle {
    public:
        int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                      QStyleHintReturn* more) const override {
            return hint == SH_Widget_Animation_Duration
                       ? 0
                       : QProxyStyle::styleHint(hint, option, widget, more);
        }
    };
};
