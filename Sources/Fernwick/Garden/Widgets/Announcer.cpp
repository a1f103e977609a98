#include "Garden/Widgets/Announcer.hpp"

#include <QEvent>
#include <QTimer>
#include <utility>

#include "Garden/Widgets/Accessibility.hpp"

namespace Garden {

namespace {

// Speech pauses at a full stop.
QString asSentence(const QString& text) {
    return text.back().isLetterOrNumber() ? text + u'.' : text;
}

}  // namespace

void announce(QWidget& view, const QString& text) {
    QWidget& window = *view.window();
    auto* announcer = window.findChild<Announcer*>(QString(), Qt::FindDirectChildrenOnly);
    if (announcer == nullptr) {
        announcer = new Announcer(window);
    }
    announcer->add(text);
}

Announcer::Announcer(QWidget& window)
    : QWidget(&window), notifications_{new QWidget(this), new QWidget(this)} {
    setAccessibleRole(*this, QAccessible::StatusBar);
    for (QWidget* notification : notifications_) {
        setAccessibleRole(*notification, QAccessible::Notification);
        notification->hide();
    }
    setFixedSize(0, 0);
    show();
    window.installEventFilter(this);
    QAccessible::installActivationObserver(this);
}

Announcer::~Announcer() {
    QAccessible::removeActivationObserver(this);
}

void Announcer::add(const QString& text) {
    if (!isScheduled_) {
        texts_.clear();
    }
    texts_.append(asSentence(spoken(text)));
    sayLater();
}

bool Announcer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        sayLater();
    }
    return QWidget::eventFilter(watched, event);
}

void Announcer::accessibilityActiveChanged(bool active) {
    // Called before Qt has connected to the accessibility bus.
    if (active) {
        sayLater();
    }
}

void Announcer::sayLater() {
    if (!isScheduled_) {
        isScheduled_ = true;
        QTimer::singleShot(0, this, &Announcer::say);
    }
}

void Announcer::say() {
    isScheduled_ = false;
    if (texts_.isEmpty() || !QAccessible::isActive() || !window()->isActiveWindow()) {
        return;
    }
    std::swap(notifications_.front(), notifications_.back());
    notifications_.back()->hide();
    notifications_.front()->setAccessibleName(texts_.join(u' '));
    notifications_.front()->show();
    texts_.clear();
}

}  // namespace Garden
