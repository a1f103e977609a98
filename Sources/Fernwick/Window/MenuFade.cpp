#include "Window/MenuFade.hpp"

#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QMenu>
#include <QPixmap>

#include "Desktop/X11Compositor.hpp"
#include "Garden/Look/Motion.hpp"
#include "Window/ClosedMenu.hpp"

MenuFade::MenuFade(QMenu& menu) : QObject(&menu), menu_(menu), presence_(this) {
    menu.installEventFilter(this);
    presence_.setDuration(Garden::menuDuration);
    presence_.setStartValue(0.0);
    presence_.setEndValue(1.0);
    presence_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&presence_, &QVariantAnimation::valueChanged, &menu, [&menu](const QVariant& value) {
        if (auto* effect = qobject_cast<QGraphicsOpacityEffect*>(menu.graphicsEffect())) {
            effect->setOpacity(value.toDouble());
        }
    });
    connect(&presence_, &QVariantAnimation::finished, &menu,
            [&menu] { menu.setGraphicsEffect(nullptr); });
}

bool MenuFade::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show) {
        fadeIn();
    } else if (event->type() == QEvent::Hide) {
        fadeOut();
    }
    return QObject::eventFilter(watched, event);
}

QWidget* MenuFade::owner() const {
    return menu_.parentWidget() == nullptr ? nullptr : menu_.parentWidget()->window();
}

void MenuFade::fadeIn() {
    const bool follows = owner() != nullptr && ClosedMenu::removeFrom(*owner());
    if (follows || !Desktop::isComposited() || Garden::reducedMotion()) {
        return;
    }
    auto* effect = new QGraphicsOpacityEffect;
    effect->setOpacity(0);
    menu_.setGraphicsEffect(effect);
    presence_.start();
}

void MenuFade::fadeOut() {
    const bool isFadingIn = presence_.state() == QAbstractAnimation::Running;
    const double presence = isFadingIn ? presence_.currentValue().toDouble() : 1;
    presence_.stop();
    menu_.setGraphicsEffect(nullptr);
    if (owner() != nullptr && owner()->isVisible() && !Garden::reducedMotion()) {
        new ClosedMenu(menu_.grab(), owner()->mapFromGlobal(menu_.pos()), presence, *owner());
    }
}
