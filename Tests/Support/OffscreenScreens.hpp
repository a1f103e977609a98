#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QSize>
#include <QTemporaryFile>

/// Selects Qt's offscreen platform with screens of these sizes, in points, from left to right.
/// Create it before the application object.
class OffscreenScreens {
public:
    explicit OffscreenScreens(const QList<QSize>& sizes) {
        const double scale = qEnvironmentVariableIsSet("QT_SCALE_FACTOR")
                                 ? qgetenv("QT_SCALE_FACTOR").toDouble()
                                 : 1;
        QJsonArray screens;
        int left = 0;
        for (const QSize& size : sizes) {
            const QSize pixels = (QSizeF(size) * scale).toSize();
            // Qt tells screens apart by their names.
            screens.append(QJsonObject{{"name", QString::number(screens.size())},
                                       {"x", left},
                                       {"y", 0},
                                       {"width", pixels.width()},
                                       {"height", pixels.height()},
                                       {"logicalDpi", 96},
                                       {"logicalBaseDpi", 96},
                                       {"dpr", 1.0}});
            left += pixels.width();
        }
        if (file_.open()) {
            file_.write(QJsonDocument(QJsonObject{{"screens", screens}}).toJson());
            file_.flush();
        }
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file_.fileName().toLocal8Bit());
    }

private:
    QTemporaryFile file_;
};
