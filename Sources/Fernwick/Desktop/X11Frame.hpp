#pragma once

#include <QAbstractNativeEventFilter>
#include <QMargins>
#include <QObject>
#include <QRect>
#include <cstdint>

class QRegion;
class QWindow;

/// What a window that draws its own frame tells the X11 window manager and compositor. Rectangles
/// are in device pixels of the window. Nothing happens on other platforms than X11.
namespace Desktop {

/// Whether the window manager regards a margin around the window as not belonging to it, if the
/// window says so by `setFrameMargins`.
[[nodiscard]] bool supportsFrameMargins();

/// The width of the part around the visible window that holds its shadow.
void setFrameMargins(const QWindow& window, const QMargins& margins);

/// The part without translucent pixels. The compositor need not draw what is behind it.
void setOpaqueRegion(const QWindow& window, const QRegion& region);

/// The part that takes the pointer; all of the window if `area` is empty. Elsewhere the pointer
/// reaches the window behind.
void setInputArea(const QWindow& window, const QRect& area);

/// Whether the window fills the screen in one direction, as beside another window.
[[nodiscard]] bool isHalfMaximized(const QWindow& window);

/// Tells when a compositor starts or ends, and when the window manager changes the window's state
/// in any way. Qt passes on only some of the latter.
class FrameWatch : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    FrameWatch(const QWindow& window, QObject* parent);

Q_SIGNALS:
    void changed();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    // As in xcb.h.
    std::uint32_t window_ = 0;
    std::uint32_t stateProperty_ = 0;
    std::uint32_t compositor_ = 0;
    int selectionEvent_ = -1;
};

}  // namespace Desktop
