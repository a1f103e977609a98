#include "Desktop/BufferScale.hpp"

#include <QBackingStore>
#include <QImage>
#include <QWindow>

namespace Desktop {

bool correctBufferScale(QBackingStore& store) {
    auto* const buffer = dynamic_cast<QImage*>(store.paintDevice());
    const qreal scale = store.window()->devicePixelRatio();
    // A buffer of another size in pixels is replaced by Qt.
    if (buffer == nullptr || buffer->devicePixelRatio() == scale ||
        buffer->size() != store.size() * scale) {
        return false;
    }
    buffer->setDevicePixelRatio(scale);
    return true;
}

}  // namespace Desktop
