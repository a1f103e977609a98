#include "MainWindow/FernwickApp.hpp"

#include <QGuiApplication>

#include "Session/MainThread.hpp"

FernwickApp::FernwickApp(Preferences& preferences, SoundEffects& soundEffects)
    : session_(preferences, soundEffects), window_(session_) {
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &FernwickApp::applicationStateChanged);
}

void FernwickApp::show() {
    session_.installKeys();
    window_.show();
    window_.raise();
    window_.activateWindow();
}

void FernwickApp::applicationStateChanged(Qt::ApplicationState state) {
    assertMainThread();
    if (state != Qt::ApplicationActive && session_.running) {
        session_.pause();
    }
}
