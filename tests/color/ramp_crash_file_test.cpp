#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "color/RampCrashFile.h"

namespace {

std::vector<KeptCrtcRamps> two_crtcs()
{
    std::vector<KeptCrtcRamps> crtcs(2);
    crtcs[0].crtc = 63;
    crtcs[0].ramp_size = 4;
    crtcs[0].ramps = {0, 1, 2, 3, 10, 11, 12, 13, 65535, 65534, 65533, 65532};
    crtcs[1].crtc = 64;
    crtcs[1].ramp_size = 2;
    crtcs[1].ramps = {7, 8, 9, 10, 11, 12};
    return crtcs;
}

QByteArray read_all(const QString& path)
{
    QFile f(path);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly));
    return f.readAll();
}

void write_all(const QString& path, const QByteArray& data)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(data);
}

} // namespace

TEST(RampCrashFile, RoundTrip)
{
    QTemporaryDir dir;
    RampCrashFile file(dir.filePath("ramps.bin"));
    ASSERT_TRUE(file.write(two_crtcs()));
    std::vector<KeptCrtcRamps> loaded;
    QString reason;
    ASSERT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Loaded) << reason.toStdString();
    ASSERT_EQ(loaded.size(), 2u);
    EXPECT_EQ(loaded[0].crtc, 63u);
    EXPECT_EQ(loaded[0].ramp_size, 4u);
    EXPECT_EQ(loaded[0].ramps, two_crtcs()[0].ramps);
    EXPECT_EQ(loaded[1].crtc, 64u);
    EXPECT_EQ(loaded[1].ramps, two_crtcs()[1].ramps);
    // Only the owner reads it: it tells what the screen looked like.
    EXPECT_EQ(QFile::permissions(file.path()) & (QFileDevice::ReadOther | QFileDevice::ReadGroup), 0);
    file.remove();
    EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Missing);
}

TEST(RampCrashFile, LayoutIsMagicVersionIdsSizesRampsChecksum)
{
    QTemporaryDir dir;
    RampCrashFile file(dir.filePath("ramps.bin"));
    ASSERT_TRUE(file.write(two_crtcs()));
    const QByteArray data = read_all(file.path());
    // 8 magic + 4 version + 4 count + 2 * 16 ids, sizes and last written
    // + (12 + 6) * 2 ramps + 4 checksum
    EXPECT_EQ(data.size(), 8 + 4 + 4 + 32 + 36 + 4);
    EXPECT_EQ(data.left(4), QByteArray("OVRA"));
    EXPECT_EQ(static_cast<unsigned char>(data[16]), 63); // first CRTC id, little-endian
    EXPECT_EQ(static_cast<unsigned char>(data[20]), 4);  // its ramp size
}

TEST(RampCrashFile, DamagedFilesAreInvalid)
{
    QTemporaryDir dir;
    RampCrashFile file(dir.filePath("ramps.bin"));
    ASSERT_TRUE(file.write(two_crtcs()));
    const QByteArray good = read_all(file.path());
    std::vector<KeptCrtcRamps> loaded;
    QString reason;

    write_all(file.path(), good.left(good.size() - 7));
    EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Invalid);
    EXPECT_EQ(reason, "truncated");
    EXPECT_TRUE(loaded.empty());

    write_all(file.path(), good.left(10));
    EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Invalid);

    QByteArray bad_magic = good;
    bad_magic[0] = 'X';
    write_all(file.path(), bad_magic);
    EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Invalid);
    EXPECT_EQ(reason, "not a ramp file");

    QByteArray flipped = good;
    flipped[40] = static_cast<char>(flipped[40] ^ 0x10);
    write_all(file.path(), flipped);
    EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Invalid);
    EXPECT_EQ(reason, "checksum mismatch");

    QByteArray version = good;
    version[8] = 9;
    write_all(file.path(), version);
    EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Invalid);
    EXPECT_EQ(reason, "unknown version 9");

    write_all(file.path(), good + QByteArray("tail"));
    EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Invalid);

    write_all(file.path(), QByteArray());
    EXPECT_EQ(file.load(&loaded, &reason), RampCrashFile::LoadResult::Invalid);
}

TEST(RampCrashFile, OneFilePerDisplayInTheRuntimeDir)
{
    QTemporaryDir dir;
    const QByteArray old = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", dir.path().toLocal8Bit());
    const QString zero = RampCrashFile::path_for_display(":0");
    EXPECT_EQ(zero, dir.path() + "/ovra-ramps-0.bin");
    EXPECT_EQ(RampCrashFile::path_for_display(":0.0"), zero);
    EXPECT_EQ(RampCrashFile::path_for_display("unix:0"), zero);
    EXPECT_NE(RampCrashFile::path_for_display(":1"), zero);
    EXPECT_EQ(RampCrashFile::path_for_display("otherhost:0"), dir.path() + "/ovra-ramps-otherhost_0.bin");
    // A path-like display name must not climb out of the directory.
    EXPECT_TRUE(RampCrashFile::path_for_display("../../x:0").startsWith(dir.path() + "/ovra-ramps-"));
    EXPECT_FALSE(RampCrashFile::path_for_display("../../x:0").mid(dir.path().size() + 1).contains('/'));
    qputenv("XDG_RUNTIME_DIR", "");
    EXPECT_FALSE(RampCrashFile::path_for_display(":0").startsWith(dir.path()));
    qputenv("XDG_RUNTIME_DIR", old);
}
