#pragma once

#include <QApplication>
#include <QProxyStyle>

/// During its lifetime, the application's style has an animation duration of 0.
class StillStyle {
public:
    StillStyle() : style_(QApplication::style()) { QApplication::setStyle(new Still(style_)); }
    ~StillStyle() {
        // A style that has been the base of another one has to stay one.
        style_->setParent(nullptr);
        QApplication::setStyle(new QProxyStyle(style_));
    }
    StillStyle(const StillStyle&) = delete;
    StillStyle& operator=(const StillStyle&) = delete;

private:
    class Still : public QProxyStyle {
    public:
        using QProxyStyle::QProxyStyle;

        int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                      QStyleHintReturn* more) const override {
            return hint == SH_Widget_Animation_Duration
                       ? 0
                       : QProxyStyle::styleHint(hint, option, widget, more);
        }
    };

    QStyle* style_;
};
