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

/// The window out of full screen at the size given by the test parameter.
class LookTest : public WindowTest, public ::testing::WithParamInterface<QSize> {
protected:
    explicit LookTest(const SavedScores& saved = {}) : WindowTest(saved) { resizeTo(GetParam()); }

    void resizeTo(const QSize& size) {
        if (window.isFullScreen()) {
            leaveFullScreen();
        }
        window.resize(size);
        processEvents();
    }

    [[nodiscard]] Garden::TrackedLabel& label(const QString& text) const {
        auto* found = Screen::find<Garden::TrackedLabel>(window, text);
        if (found == nullptr) {
            throw std::runtime_error("no label " + text.toStdString());
        }
        return *found;
    }

    [[nodiscard]] QRect labelRect(const QString& text) const { return rectOf(label(text)); }

    void expectLabel(const QString& text, const Look::Type& type, const QColor& colour) const {
        SCOPED_TRACE(text.toStdString());
        Look::expectType(label(text), type);
        EXPECT_EQ(label(text).colour(), colour);
    }

    /// The frame of the board, in window coordinates.
    [[nodiscard]] QRectF boardFrame() const { return child<BoardArea>().frame(); }

    [[nodiscard]] double cell() const { return boardFrame().width() / 28; }

    /// The centre of a cell of the board, in window coordinates.
    [[nodiscard]] QPointF centreOf(const SnakeCore::Cell& position) const {
        return boardFrame().topLeft() + cell() * QPointF(static_cast<double>(position.x) + 0.5,
                                                         static_cast<double>(position.y) + 0.5);
    }

    /// The window after all animations have finished.
    [[nodiscard]] QImage picture() {
        waitForAnimations();
        return grab();
    }
};

inline std::string sizeName(const ::testing::TestParamInfo<QSize>& size) {
    return std::to_string(size.param.width()) + "x" + std::to_string(size.param.height());
}

/// The minimum window size and a common screen size.
inline const auto windowSizes = ::testing::Values(QSize(820, 760), QSize(1920, 1080));
