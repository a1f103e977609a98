#include "Window/AltTap.hpp"

#include <QCoreApplication>
#include <QKeyEvent>
#include <cstdint>

namespace {

// As in xproto.h, which would be the only use of libxcb.
constexpr std::uint8_t xcbKeyPress = 2;
constexpr std::uint8_t xcbFocusOut = 10;
constexpr std::uint8_t xcbTypeMask = 0x7f;

bool hasOtherModifier(const QKeyEvent& event) {
    return (event.modifiers() & ~Qt::AltModifier) != 0;
}

}  // namespace

AltTap::AltTap(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

bool AltTap::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease: {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            // QMenuBar takes Meta for Alt.
            if (key.key() != Qt::Key_Alt && key.key() != Qt::Key_Meta) {
                alone_ = false;
                break;
            }
            // The filter installed last is called first. QMenuBar installs its own at the
            // ShortcutOverride event, just before the key press.
            if (key.type() == QEvent::KeyPress) {
                QCoreApplication::instance()->installEventFilter(this);
            }
            if (watched->isWindowType()) {
                return follow(key);
            }
            break;
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
        case QEvent::FocusIn:
        case QEvent::FocusOut:
        case QEvent::WindowActivate:
        case QEvent::WindowDeactivate:
        case QEvent::ApplicationStateChange:
            alone_ = false;
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

bool AltTap::follow(const QKeyEvent& event) {
    if (event.isAutoRepeat()) {
        return true;
    }
    const std::size_t key = event.nativeScanCode() % focusLost_.size();
    if (event.type() == QEvent::KeyPress) {
        if (key == 0) {
            // Not from the keyboard.
            focusLost_.reset(key);
        }
        // In an open menu, Alt closes it, and the focus changes.
        alone_ = event.key() == Qt::Key_Alt && !hasOtherModifier(event);
        return false;
    }
    const bool isTap = alone_ && !hasOtherModifier(event) && !focusLost_[key];
    alone_ = false;
    if (isTap) {
        Q_EMIT tapped();
    }
    return !isTap;
}

// When the window manager grabs a key, the X server takes the focus from the window. Qt reports
// that only if the focus does not come back within a moment. This filter may be ahead of Qt's
// events, as Qt reads several X events at a time, so the order is kept for each key.
bool AltTap::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
    if (eventType == "xcb_generic_event_t") {
        const auto* bytes = static_cast<const std::uint8_t*>(message);
        switch (bytes[0] & xcbTypeMask) {
            case xcbKeyPress:
                focusLost_.reset(bytes[1]);
                break;
            case xcbFocusOut:
                focusLost_.set();
                break;
            default:
                break;
        }
    }
    return false;
}
