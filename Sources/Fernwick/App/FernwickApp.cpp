#include "App/FernwickApp.hpp"

#include "Desktop/ActivationToken.hpp"
#include "Session/MainThread.hpp"

FernwickApp::FernwickApp(Preferences& preferences, SoundEffects& soundEffects)
    : session_(preferences, soundEffects), keyMonitor_(session_), window_(session_) {
    connect(&keyboardFocus_, &Desktop::KeyboardFocus::lost, this, [this] {
        assertMainThread();
        if (session_.running()) {
            session_.pause();
        }
    });
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
}
