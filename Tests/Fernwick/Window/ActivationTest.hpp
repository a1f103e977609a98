#pragma once

#include <QTest>
#include <QWindow>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/WindowTest.hpp"

enum class Activation { click, returnKey };

/// Activates controls with a mouse click or with Tab and Return.
class ActivationTest : public WindowTest, public ::testing::WithParamInterface<Activation> {
protected:
    /// Activates the control called `name` in `root`. Returns false if there is none to click, or
    /// if Tab does not reach it.
    bool activate(const QWidget& root, const QString& name) {
        if (GetParam() == Activation::click) {
            const QAbstractButton* control = Screen::button(root, name);
            EXPECT_NE(control, nullptr) << name.toStdString();
            if (control == nullptr) {
                return false;
            }
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, rectOf(*control).center());
        } else if (Keyboard::tabTo(window, name)) {
            Keyboard::press(window, Qt::Key_Return);
        } else {
            return false;
        }
        processEvents();
        return true;
    }

    bool activate(const QString& name) { return activate(window, name); }
};

inline const auto allActivations = ::testing::Values(Activation::click, Activation::returnKey);

inline std::string activationName(const ::testing::TestParamInfo<Activation>& activation) {
    return activation.param == Activation::click ? "Click" : "Return";
}
