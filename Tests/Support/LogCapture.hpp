#pragma once

#include <QLoggingCategory>
#include <QMutex>
#include <QString>
#include <QStringList>

/// While this object exists, enables a logging category and records all Qt messages, of any thread,
/// instead of printing them. Only one may exist at a time.
class LogCapture {
public:
    explicit LogCapture(const QString& category) {
        messages_.clear();
        QLoggingCategory::setFilterRules(category + QStringLiteral("=true"));
        previous_ = qInstallMessageHandler(record);
    }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;
    ~LogCapture() {
        qInstallMessageHandler(previous_);
        QLoggingCategory::setFilterRules(QString());
    }

    /// Whether any message contains `text`.
    [[nodiscard]] bool contains(const QString& text) const { return all().contains(text); }

    /// All messages, one a line.
    [[nodiscard]] QString all() const {
        const QMutexLocker lock(&mutex_);
        return messages_.join(u'\n');
    }

private:
    static void record(QtMsgType, const QMessageLogContext& context, const QString& message) {
        const QMutexLocker lock(&mutex_);
        messages_.append(QString::fromLatin1(context.category) + QStringLiteral(": ") + message);
    }

    inline static QMutex mutex_;
    inline static QStringList messages_;
    QtMessageHandler previous_;
};
