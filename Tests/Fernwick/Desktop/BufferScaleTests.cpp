#include <gtest/gtest.h>

#include <QBackingStore>
#include <QImage>
#include <QWindow>

#include "Desktop/BufferScale.hpp"

namespace {

class BufferScaleTest : public testing::Test {
protected:
    BufferScaleTest() {
        window_.resize(60, 40);
        window_.create();
        store_.resize(window_.size());
        store_.beginPaint(QRect(QPoint(), window_.size()));
        store_.endPaint();
    }

    QImage& buffer() { return dynamic_cast<QImage&>(*store_.paintDevice()); }

    QWindow window_;
    QBackingStore store_{&window_};
};

TEST_F(BufferScaleTest, aBufferWithTheScaleOfItsWindowIsNotChanged) {
    EXPECT_FALSE(Desktop::correctBufferScale(store_));
    EXPECT_EQ(buffer().devicePixelRatio(), 1);
}

TEST_F(BufferScaleTest, aBufferMadeForAnotherScaleGetsTheScaleOfItsWindow) {
    buffer().setDevicePixelRatio(1.5);
    EXPECT_TRUE(Desktop::correctBufferScale(store_));
    EXPECT_EQ(buffer().devicePixelRatio(), 1);
    EXPECT_FALSE(Desktop::correctBufferScale(store_));
}

TEST_F(BufferScaleTest, aCorrectedBufferKeepsItsMemory) {
    const uchar* const memory = buffer().constBits();
    buffer().setDevicePixelRatio(1.5);
    EXPECT_TRUE(Desktop::correctBufferScale(store_));
    EXPECT_EQ(buffer().constBits(), memory);
}

TEST_F(BufferScaleTest, aBufferOfAnotherSizeIsNotChangedAsQtReplacesIt) {
    buffer() = QImage(90, 60, QImage::Format_RGB32);
    buffer().setDevicePixelRatio(1.5);
    EXPECT_FALSE(Desktop::correctBufferScale(store_));
    EXPECT_EQ(buffer().devicePixelRatio(), 1.5);
}

}  // namespace
