#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Main/BoardArea.hpp"
#include "Session/Pace.hpp"
#include "Support/Look.hpp"

/// The window out of full screen, at the size that is the test's parameter.
class LookTest : public WindowTest, public ::testing::WithParamInterface<QSize> {
protected:
    explicit LookTest(const SavedScores& saved = {}) : WindowTest(saved) { resizeTo(GetParam()); }

    void resizeTo(const QSize& size) {
        if (window.isFullScreen()) {
            leaveFullScreen();
        }
        window.resize(size);
        settle();
    }

    [[nodiscard]] Garden::TrackedLabel& label(const QString& text) const {
        auto* found = Screen::find<Garden::TrackedLabel>(window, text);
        if (found == nullptr) {
            throw std::runtime_error("no label " + text.toStdString());
        }
        return *found;
    }

    void expectLabel(const QString& text, const Look::Type& type, const QColor& colour) const {
        SCOPED_TRACE(text.toStdString());
        Look::expectType(label(text), type);
        EXPECT_EQ(label(text).colour(), colour);
    }

    /// Where the frame of the board stands, in points of the window.
    [[nodiscard]] QRectF boardFrame() const { return the<BoardArea>().frame(); }

    [[nodiscard]] double cell() const { return boardFrame().width() / 28; }

    /// The middle of a cell of the board, in points of the window.
    [[nodiscard]] QPointF middleOf(const SnakeCore::Cell& place) const {
        return boardFrame().topLeft() + cell() * QPointF(static_cast<double>(place.x) + 0.5,
                                                         static_cast<double>(place.y) + 0.5);
    }

    /// The window once nothing on it moves any more.
    [[nodiscard]] QImage picture() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return isStill(); }));
        return window.grab().toImage();
    }
};

inline std::string nameOfSize(const ::testing::TestParamInfo<QSize>& size) {
    return std::to_string(size.param.width()) + "x" + std::to_string(size.param.height());
}

/// The smallest window and a common screen.
inline const auto bothSizes = ::testing::Values(QSize(820, 760), QSize(1920, 1080));
