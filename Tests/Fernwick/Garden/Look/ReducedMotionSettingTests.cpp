#include <gtest/gtest.h>
#include <signal.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QHash>
#include <QProcess>
#include <QTest>
#include <chrono>
#include <memory>

#include "Desktop/PortalSwitch.hpp"
#include "Garden/Look/Motion.hpp"

namespace {

const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeKey = QStringLiteral("enable-animations");

/// A settings portal that returns `values`.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QHash<QString, QVariant> values;
    int reads = 0;

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key) {
        ++reads;
        // Wrapped in two variants, as real portals reply.
        return QDBusVariant(
            QVariant::fromValue(QDBusVariant(values.value(group + u'/' + key, QString()))));
    }

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

class ReducedMotionSetting : public testing::Test {
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

    bool allSettingsRead() {
        return QTest::qWaitFor([this] { return portal.reads == 3; });
    }

    std::unique_ptr<Desktop::PortalSwitch> createSetting(const QDBusConnection& bus) {
        return std::unique_ptr<Desktop::PortalSwitch>(Garden::reducedMotionSetting(bus, nullptr));
    }

    // Repeats the signal until it arrives, because the setting may not have subscribed yet.
    bool follows(const Desktop::PortalSwitch& setting, bool animations) {
        return QTest::qWaitFor([&] {
            Q_EMIT portal.SettingChanged(gnome, gnomeKey, QDBusVariant(animations));
            return setting.isOn() != animations;
        });
    }

    Portal portal;
    QProcess daemon;
    QString address;
};

}  // namespace

TEST_F(ReducedMotionSetting, isOnWhenTheSettingOfAnyDesktopIsOn) {
    const QHash<QString, QVariant> values{
        {gnome + u'/' + gnomeKey, false},
        {QStringLiteral("org.kde.kdeglobals.KDE/AnimationDurationFactor"), QStringLiteral("0")},
        {QStringLiteral("org.freedesktop.appearance/reduced-motion"), 1U}};
    openPortal();
    for (auto value = values.begin(); value != values.end(); ++value) {
        portal.values = {{value.key(), value.value()}};
        const auto setting = createSetting(programBus());
        EXPECT_FALSE(setting->isOn());
        EXPECT_TRUE(QTest::qWaitFor([&] { return setting->isOn(); })) << value.key().toStdString();
    }
}

TEST_F(ReducedMotionSetting, isOffWhenTheDesktopAnimates) {
    portal.values = {
        {gnome + u'/' + gnomeKey, true},
        {QStringLiteral("org.kde.kdeglobals.KDE/AnimationDurationFactor"), QStringLiteral("0.5")},
        {QStringLiteral("org.freedesktop.appearance/reduced-motion"), 0U}};
    openPortal();
    const auto setting = createSetting(programBus());

    ASSERT_TRUE(allSettingsRead());
    QTest::qWait(50);

    EXPECT_FALSE(setting->isOn());
}

TEST_F(ReducedMotionSetting, doesNotBlockOnAHangingBus) {
    const QDBusConnection bus = programBus();
    const auto process = static_cast<pid_t>(daemon.processId());
    ASSERT_EQ(::kill(process, SIGSTOP), 0);
    const auto start = std::chrono::steady_clock::now();

    const auto setting = createSetting(bus);

    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_FALSE(setting->isOn());
    ::kill(process, SIGCONT);
}

TEST_F(ReducedMotionSetting, followsLaterChanges) {
    openPortal();
    const auto setting = createSetting(programBus());
    ASSERT_TRUE(allSettingsRead());

    EXPECT_TRUE(follows(*setting, false));
    EXPECT_TRUE(follows(*setting, true));
}

TEST_F(ReducedMotionSetting, ignoresOtherSettings) {
    openPortal();
    const auto setting = createSetting(programBus());
    ASSERT_TRUE(follows(*setting, false));

    Q_EMIT portal.SettingChanged(gnome, QStringLiteral("cursor-blink"), QDBusVariant(true));
    QTest::qWait(50);

    EXPECT_TRUE(setting->isOn());
}

TEST_F(ReducedMotionSetting, isOffWithoutAPortal) {
    const auto setting = createSetting(programBus());
    QTest::qWait(50);

    EXPECT_FALSE(setting->isOn());
}

#include "ReducedMotionSettingTests.moc"
