#include "platform/seat/Folders.h"
#include "platform/seat/MachineIdentity.h"
#include "platform/seat/RegionalFormats.h"
#include "support/TempFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace velcro;

namespace {

[[maybe_unused]] void write(const QString& path, const QByteArray& text) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

#ifndef Q_OS_WIN

TEST(SeatTest, theFirstHardwareAdapterSpeaksForTheSeat) {
    const test::TempFolder folder;
    const QString net = QString::fromStdString(folder.path().string());
    write(net + "/lo/address", "00:00:00:00:00:00\n");
    write(net + "/lo/ifindex", "1\n");
    write(net + "/bridge0/address", "02:aa:bb:cc:dd:ee\n");
    write(net + "/bridge0/ifindex", "2\n");
    write(net + "/wlan0/address", "00:11:22:33:44:66\n");
    write(net + "/wlan0/ifindex", "10\n");
    write(net + "/wlan0/device/id", "");
    write(net + "/eth9/address", "00:1b:22:3c:44:55\n");
    write(net + "/eth9/ifindex", "9\n");
    write(net + "/eth9/device/id", "");
    write(net + "/ib0/address", "80:00:00:00:00:00:00:01\n");
    EXPECT_EQ(seat::adapterAddressesIn(net),
              (QStringList{"00-1B-22-3C-44-55", "00-11-22-33-44-66", "02-AA-BB-CC-DD-EE"}));
    EXPECT_TRUE(seat::adapterAddressesIn(net + "/none").isEmpty());
}

#endif

TEST(SeatTest, theSystemTellsWhoThisIs) {
    EXPECT_FALSE(seat::computerName().isEmpty());
    EXPECT_FALSE(seat::userName().isEmpty());
    EXPECT_EQ(seat::volumeSerial(), seat::volumeSerial()) << "the serial does not change";
    const QRegularExpression adapter("^([0-9A-F]{2}-){5}[0-9A-F]{2}$");
    for (const QString& address : seat::adapterAddresses()) {
        EXPECT_TRUE(adapter.match(address).hasMatch()) << address.toStdString();
    }
    const QRegularExpression number("^[0-9]+(\\.[0-9]+){3}$");
    for (const QString& address : seat::hostAddresses()) {
        EXPECT_TRUE(number.match(address).hasMatch()) << address.toStdString();
    }
}

TEST(SeatTest, settingsAreLookedForInTwoFolders) {
    qputenv("XDG_CONFIG_HOME", "/somewhere/config");
    EXPECT_EQ(seat::programFilesRoots().last(), "/somewhere/config/velmara");
    qunsetenv("XDG_CONFIG_HOME");
#ifdef Q_OS_WIN
    EXPECT_EQ(seat::programFilesRoots(),
              (QStringList{"C:\\Program Files", "C:\\Program Files (x86)"}));
#else
    EXPECT_EQ(seat::programFilesRoots(),
              (QStringList{"/opt/velmara", QDir::homePath() + "/.config/velmara"}));
#endif
    seat::setProgramFilesRoots({"/one"});
    EXPECT_EQ(seat::programFilesRoots(), QStringList{"/one"});
    seat::setProgramFilesRoots({});
    EXPECT_EQ(seat::nativePath("a\\b/c"), QDir::toNativeSeparators("a/b/c"));
}

TEST(SeatTest, aProgramInAFolderItMayNotWriteWorksInTheUsersData) {
    const test::TempFolder folder;
    const QString data = QString::fromStdString(folder.file("data"));
    const QString own = QString::fromStdString(folder.path().string());
    EXPECT_EQ(seat::workingFolder(own + "/velCRO"), own + "/");
    qputenv("XDG_DATA_HOME", data.toUtf8());
    // Not even root writes here, and no folder of that name can be made.
    EXPECT_EQ(seat::workingFolder("/proc/velCRO/velCRO"), data + "/velCRO/");
    const auto others = std::filesystem::perms::group_all | std::filesystem::perms::others_all;
    const std::filesystem::path made = folder.path() / "data/velCRO";
    EXPECT_EQ(std::filesystem::status(made).permissions() & others, std::filesystem::perms::none);
    // One that an earlier version left open is closed.
    std::filesystem::permissions(made, std::filesystem::perms(0755));
    std::ofstream(folder.path() / "installed").flush();
    EXPECT_EQ(seat::workingFolder(own + "/velCRO"), data + "/velCRO/");
    EXPECT_EQ(std::filesystem::status(made).permissions() & others, std::filesystem::perms::none);
    qunsetenv("XDG_DATA_HOME");
}

TEST(SeatTest, numbersLookTheSameOnEverySeat) {
    QLocale::setDefault(QLocale(QLocale::German));
    seat::forceProgramFormats();
    EXPECT_EQ(QLocale().toString(1234.5, 'f', 2), "1234.50");
    const std::vector<std::pair<double, const char*>> cases = {
        {0, "0.00"}, {999.999, "1 000.00"}, {-1234567.891, "-1 234 567.89"}, {-123, "-123.00"}};
    for (const auto& [number, text] : cases) {
        EXPECT_EQ(seat::groupedNumber(number, 2), text);
    }
    EXPECT_EQ(seat::groupedNumber(1234567, 0), "1 234 567");
}
