#include <QPoint>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <map>
#include "settings/ExportSettings.h"
#include "settings/ImportSettings.h"
#include "settings/SaveManager.h"

inline void PrintTo(const QString& text, std::ostream* os) { *os << '"' << text.toStdString() << '"'; }

namespace {

using Stored = std::map<QString, QString>;

Stored stored(QSettings& store)
{
    Stored all;
    for (const QString& key : store.allKeys())
        all[key] = store.value(key).toString();
    return all;
}

class ExchangeFormat : public ::testing::TestWithParam<bool>
{
protected:
    QTemporaryDir dir;
    QSettings store{SaveManager::store_organization_name(), SaveManager::store_application_name()};
    QSettings target{dir.filePath("target.conf"), QSettings::IniFormat};
    void SetUp() override { store.clear(); }
};

// The program's own store out through a file, into an empty one.
TEST_P(ExchangeFormat, RoundTripKeepsTextsAndLosesPointsAndLists)
{
    const bool as_string = GetParam();
    store.setValue("Notes", "first\nsecond");
    store.setValue("BreakTime", "12-30");
    store.setValue("UseDarkMode", true);
    store.setValue("DayTemperature1", 4500);
    store.setValue("Where", QPoint(3, 4));
    store.setValue("Pages", QStringList{"a", "b"});
    store.setValue("ApiArguments", "--token");

    const QString text = ExportSettings::settings_text(&store, as_string);
    EXPECT_TRUE(text.startsWith(as_string ? "#Created_by_YOUR_NAME_<" : "#Created by YOUR NAME <")) << qPrintable(text);
    EXPECT_TRUE(text.contains(as_string ? "BreakTime=12[minus]30[sep]" : "BreakTime=12-30\n")) << qPrintable(text);
    EXPECT_TRUE(text.contains("Notes=first[new_line]second")) << qPrintable(text);
    EXPECT_FALSE(text.contains("ApiArguments")) << qPrintable(text);
    if (as_string) {
        EXPECT_FALSE(text.contains(' ') || text.contains('\n')) << qPrintable(text);
    }

    const QString path = dir.filePath("out.ovra_settings");
    ASSERT_EQ(ExportSettings::write_file(&store, path, as_string), 0);
    ASSERT_EQ(ImportSettings().import_settings_from_file(&target, path), 0);
    EXPECT_EQ(stored(target), (Stored{{"BreakTime", "12-30"}, {"DayTemperature1", "4500"},
                                      {"Notes", "first\nsecond"}, {"Pages", ""}, {"UseDarkMode", "true"}, {"Where", ""}}));
}

INSTANTIATE_TEST_SUITE_P(FileAndString, ExchangeFormat, ::testing::Values(false, true));

struct ImportRow { const char* text; Stored after; const char* printed; };

// Every case starts from ColorTriggers=old and ApiArguments=kept.
TEST_F(ExchangeFormat, ImportTakesWellFormedRecordsOnly)
{
    const Stored before{{"ApiArguments", "kept"}, {"ColorTriggers", "old"}};
    auto with = [&](Stored extra) {
        extra.insert(before.begin(), before.end());
        return extra;
    };
    const std::vector<ImportRow> rows = {
        {"", before, ""},
        {"#Created_by[sep];Foo=1[sep]# Foo=2", before, ""},
        {"Foo", before, "Foo is invalid line\n"},
        {"Foo=", with({{"Foo", ""}}), ""},
        {"Foo=a=b", before, "Foo=a=b is invalid line\n"},
        {"ApiArguments=other", before, ""},
        {"ColorTriggers=vlc = 6500 120", before, "ColorTriggers=vlc = 6500 120 is invalid line\n"},
        {"Foo=12[minus]30[new_line]x[sep][sep]unknownkey=1[sep]", with({{"Foo", "12-30\nx"}, {"unknownkey", "1"}}), ""},
    };
    for (const ImportRow& row : rows) {
        target.clear();
        for (const auto& [key, value] : before)
            target.setValue(key, value);
        testing::internal::CaptureStdout();
        ImportSettings().import_settings_from_string(&target, row.text);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), row.printed) << row.text;
        EXPECT_EQ(stored(target), row.after) << row.text;
    }
    testing::internal::CaptureStdout();
    EXPECT_EQ(ImportSettings().import_settings_from_file(&target, dir.filePath("none")), -1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Failed to open file for Import\n");
}

} // namespace
