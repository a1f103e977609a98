#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <bitset>

class QKeyEvent;

/// Recognises a tap of Alt alone: the key goes down and up without another modifier, and no other
/// key, mouse button or change of focus comes in between. Consumes all other releases of Alt and
/// Meta, because QMenuBar would take some of them for a tap. Works from construction to
/// destruction.
///
/// A Wayland compositor that handles a key without telling the window cannot be noticed.
class AltTap : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    explicit AltTap(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

Q_SIGNALS:
    void tapped();

private:
    bool follow(const QKeyEvent& event);

    // Alt is down, and nothing else has happened since.
    bool alone_ = false;
    // By X11 key code: whether the window has lost the focus since the key went down.
    std::bitset<256> focusLost_;
};
