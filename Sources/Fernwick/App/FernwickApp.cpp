#include "App/FernwickApp.hpp"

#include <QGuiApplication>
#include <QTimer>
#include <array>
#include <chrono>

#include "Desktop/ActivationToken.hpp"
#include "Session/MainThread.hpp"
#include "Window/FullScreenHint.hpp"

namespace {

// Several, because the window manager may be slow.
constexpr std::array repeatDelays{std::chrono::milliseconds(100), std::chrono::milliseconds(300)};

}  // namespace

FernwickApp::FernwickApp(Preferences& preferences, SoundEffects& soundEffects)
    : session_(preferences, soundEffects), keyMonitor_(session_), window_(session_) {
    connect(&keyboardFocus_, &Desktop::KeyboardFocus::lost, this, [this] {
        assertMainThread();
        if (session_.running()) {
            session_.pause();
        }
    });
    connect(&window_, &GameWindow::appeared, this,
            [this] { FullScreenHint::showIfNew(session_, window_); });
}

void FernwickApp::show() {
    window_.show();
    window_.raise();
    window_.activateWindow();
}

void FernwickApp::bringForward(const QByteArray& activationToken) {
    Desktop::setActivationToken(activationToken);
    window_.setWindowState(window_.windowState() & ~Qt::WindowMinimized);
    show();
    // Window managers refuse a request that is older than the last input in another window and mark
    // the window instead. On X11, Qt's request has the time of the last event that it has received.
    // The request causes events, so that the next one has the current time.
    if (QGuiApplication::platformName() == QStringLiteral("xcb")) {
        for (const std::chrono::milliseconds delay : repeatDelays) {
            QTimer::singleShot(delay, &window_, &QWidget::activateWindow);
        }
    }
}

void FernwickApp::startNewGame(const QByteArray& activationToken) {
    assertMainThread();
    bringForward(activationToken);
    session_.start();
}
