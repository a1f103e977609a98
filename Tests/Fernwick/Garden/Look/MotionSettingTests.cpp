#include <gtest/gtest.h>
#include <signal.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QHash>
#include <QProcess>
#include <QTest>
#include <chrono>

#include "Garden/Look/MotionSetting.hpp"

namespace {

const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeKey = QStringLiteral("enable-animations");

/// A desktop's settings portal, holding what a test tells it.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QHash<QString, QVariant> values;
    int reads = 0;

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key) {
        ++reads;
        // In two envelopes, as portals really answer.
        return QDBusVariant(
            QVariant::fromValue(QDBusVariant(values.value(group + u'/' + key, QString()))));
    }

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

class MotionSetting : public testing::Test {
protected:
    void SetUp() override {
        daemon.start(QStringLiteral("dbus-daemon"),
                     {QStringLiteral("--session"), QStringLiteral("--nofork"),
                      QStringLiteral("--print-address")});
        ASSERT_TRUE(daemon.waitForStarted());
        ASSERT_TRUE(daemon.waitForReadyRead());
        address = QString::fromUtf8(daemon.readLine()).trimmed();
    }

    void TearDown() override {
        QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
        QDBusConnection::disconnectFromBus(QStringLiteral("program"));
        daemon.terminate();
        daemon.waitForFinished();
    }

    void openPortal() {
        QDBusConnection bus = QDBusConnection::connectToBus(address, QStringLiteral("portal"));
        ASSERT_TRUE(bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                                       QDBusConnection::ExportAllContents));
        ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    QDBusConnection programBus() {
        return QDBusConnection::connectToBus(address, QStringLiteral("program"));
    }

    bool answered() {
        return QTest::qWaitFor([this] { return portal.reads == 3; });
    }

    static bool becomes(const Garden::MotionSetting& setting, bool still) {
        return QTest::qWaitFor([&] { return setting.asksForStillness() == still; });
    }

    // Said again until it is heard: a subscription takes its first moments to stand.
    bool hears(const Garden::MotionSetting& setting, bool animations) {
        return QTest::qWaitFor([&] {
            Q_EMIT portal.SettingChanged(gnome, gnomeKey, QDBusVariant(animations));
            return setting.asksForStillness() != animations;
        });
    }

    Portal portal;
    QProcess daemon;
    QString address;
};

}  // namespace

TEST_F(MotionSetting, heedsEachDesktopsOwnWord) {
    const QHash<QString, QVariant> words{
        {gnome + u'/' + gnomeKey, false},
        {QStringLiteral("org.kde.kdeglobals.KDE/AnimationDurationFactor"), QStringLiteral("0")},
        {QStringLiteral("org.freedesktop.appearance/reduced-motion"), 1U}};
    openPortal();
    for (auto word = words.begin(); word != words.end(); ++word) {
        portal.values = {{word.key(), word.value()}};
        const Garden::MotionSetting setting(programBus());
        EXPECT_FALSE(setting.asksForStillness());
        EXPECT_TRUE(becomes(setting, true)) << word.key().toStdString();
    }
}

TEST_F(MotionSetting, letsThingsMoveWhereTheDesktopDoes) {
    portal.values = {
        {gnome + u'/' + gnomeKey, true},
        {QStringLiteral("org.kde.kdeglobals.KDE/AnimationDurationFactor"), QStringLiteral("0.5")},
        {QStringLiteral("org.freedesktop.appearance/reduced-motion"), 0U}};
    openPortal();
    const Garden::MotionSetting setting(programBus());

    ASSERT_TRUE(answered());
    QTest::qWait(50);

    EXPECT_FALSE(setting.asksForStillness());
}

TEST_F(MotionSetting, doesNotWaitForABusThatHangs) {
    const QDBusConnection bus = programBus();
    const auto process = static_cast<pid_t>(daemon.processId());
    ASSERT_EQ(::kill(process, SIGSTOP), 0);
    const auto began = std::chrono::steady_clock::now();

    const Garden::MotionSetting setting(bus);

    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(5));
    EXPECT_FALSE(setting.asksForStillness());
    ::kill(process, SIGCONT);
}

TEST_F(MotionSetting, followsALaterChange) {
    openPortal();
    const Garden::MotionSetting setting(programBus());
    ASSERT_TRUE(answered());

    EXPECT_TRUE(hears(setting, false));
    EXPECT_TRUE(hears(setting, true));
}

TEST_F(MotionSetting, staysUnmovedByOtherSettings) {
    openPortal();
    const Garden::MotionSetting setting(programBus());
    ASSERT_TRUE(hears(setting, false));

    Q_EMIT portal.SettingChanged(gnome, QStringLiteral("cursor-blink"), QDBusVariant(true));
    QTest::qWait(50);

    EXPECT_TRUE(setting.asksForStillness());
}

TEST_F(MotionSetting, asksForNothingWhereThereIsNoPortal) {
    const Garden::MotionSetting setting(programBus());
    QTest::qWait(50);

    EXPECT_FALSE(setting.asksForStillness());
}

#include "MotionSettingTests.moc"
