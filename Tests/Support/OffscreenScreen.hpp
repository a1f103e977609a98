#pragma once

#include <QByteArray>
#include <QSize>
#include <QTemporaryFile>
#include <memory>

/// Selects Qt's offscreen platform with one screen of `size`, in points. Call it before the
/// application object is created; the returned file has to exist until then.
[[nodiscard]] inline std::unique_ptr<QTemporaryFile> useOffscreenScreen(const QSize& size) {
    // The plugin takes pixels.
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble();
    auto settings = std::make_unique<QTemporaryFile>();
    settings->open();
    settings->write(QStringLiteral(R"({"screens": [{"name": "test", "x": 0, "y": 0, "width": %1,
        "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                        .arg(qRound(size.width() * scale))
                        .arg(qRound(size.height() * scale))
                        .toUtf8());
    settings->flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + settings->fileName().toLocal8Bit());
    return settings;
}
