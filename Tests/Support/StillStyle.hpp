#pragma once

#include <QApplication>
#include <QProxyStyle>

/// During its lifetime, the application's style has an animation duration of 0.
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
