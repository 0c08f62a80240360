#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "color/RampCrashFile.h"

namespace {

std::vector<KeptCrtcRamps> two_crtcs()
{
    std::vector<KeptCrtcRamps> crtcs(2);
    crtcs[0] = {63, 4, {0, 1, 2, 3, 10, 11, 12, 13, 65535, 65534, 65533, 65532}};
    crtcs[1] = {64, 2, {7, 8, 9, 10, 11, 12}};
    return crtcs;
}

void write_all(const QString& path, const QByteArray& data)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(data);
}

} // namespace

TEST(RampCrashFile, RoundTripAndLayout)
{
    QTemporaryDir dir;
    RampCrashFile file(dir.filePath("ramps.bin"));
    ASSERT_TRUE(file.write(two_crtcs()));
    std::vector<KeptCrtcRamps> loaded;
    QString reason;
    ASSERT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Loaded) << reason.toStdString();
    ASSERT_EQ(loaded.size(), 2u);
    for (size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(loaded[i].crtc, two_crtcs()[i].crtc);
        EXPECT_EQ(loaded[i].ramp_size, two_crtcs()[i].ramp_size);
        EXPECT_EQ(loaded[i].ramps, two_crtcs()[i].ramps);
    }
    // Only the owner reads it: it tells what the screen looked like.
    EXPECT_EQ(QFile::permissions(file.path()) & (QFileDevice::ReadOther | QFileDevice::ReadGroup), 0);

    // 8 magic + 4 version + 4 count + 2 * 16 ids, sizes and last written
    // + (12 + 6) * 2 ramps + 4 checksum; little-endian.
    QFile f(file.path());
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray data = f.readAll();
    EXPECT_EQ(data.size(), 8 + 4 + 4 + 32 + 36 + 4);
    EXPECT_EQ(data.left(4), QByteArray("OVRA"));
    EXPECT_EQ(static_cast<unsigned char>(data[16]), 63); // first CRTC id
    EXPECT_EQ(static_cast<unsigned char>(data[20]), 4);  // its ramp size

    file.remove();
    EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Missing);
}

TEST(RampCrashFile, DamagedFilesAreInvalid)
{
    QTemporaryDir dir;
    RampCrashFile file(dir.filePath("ramps.bin"));
    ASSERT_TRUE(file.write(two_crtcs()));
    QFile f(file.path());
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray good = f.readAll();
    const auto changed = [&good](int at, char value) {
        QByteArray data = good;
        data[at] = value;
        return data;
    };
    const struct
    {
        QByteArray data;
        const char* reason; // nullptr: any
    } cases[] = {
        {good.left(good.size() - 7), "truncated"},
        {good.left(10), nullptr},
        {changed(0, 'X'), "not a ramp file"},
        {changed(40, static_cast<char>(good[40] ^ 0x10)), "checksum mismatch"},
        {changed(8, 9), "unknown version 9"},
        {good + "tail", nullptr},
        {QByteArray(), nullptr},
    };
    for (const auto& c : cases) {
        write_all(file.path(), c.data);
        std::vector<KeptCrtcRamps> loaded;
        QString reason;
        EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Invalid) << c.data.size() << " bytes";
        EXPECT_TRUE(loaded.empty());
        if (c.reason) {
            EXPECT_EQ(reason, c.reason);
        }
    }
}

TEST(RampCrashFile, OneFilePerDisplayInTheRuntimeDir)
{
    QTemporaryDir dir;
    const QByteArray old = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", dir.path().toLocal8Bit());
    const QString zero = dir.path() + "/ovra-ramps-0.bin";
    for (const char* same : {":0", ":0.0", "unix:0"})
        EXPECT_EQ(RampCrashFile::path_for_display(same), zero) << same;
    EXPECT_NE(RampCrashFile::path_for_display(":1"), zero);
    EXPECT_EQ(RampCrashFile::path_for_display("otherhost:0"), dir.path() + "/ovra-ramps-otherhost_0.bin");
    // A path-like display name must not climb out of the directory.
    const QString climbing = RampCrashFile::path_for_display("../../x:0");
    EXPECT_TRUE(climbing.startsWith(dir.path() + "/ovra-ramps-"));
    EXPECT_FALSE(climbing.mid(dir.path().size() + 1).contains('/'));
    qputenv("XDG_RUNTIME_DIR", "");
    EXPECT_FALSE(RampCrashFile::path_for_display(":0").startsWith(dir.path()));
    qputenv("XDG_RUNTIME_DIR", old);
}
