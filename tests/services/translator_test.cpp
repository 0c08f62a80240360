// The translator and its tables as compiled into the program, and the
// controller's language slots.
#include <gtest/gtest.h>

#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

#include <map>

#include "ControllerFixture.h"
#include "services/Translator.h"

namespace {

using namespace controller_test;

QString source_dir()
{
    return qEnvironmentVariable("OVRA_SOURCE_DIR");
}

// The Translator context of the English Linguist file: key -> English.
std::map<QString, QString> page_table()
{
    QFile file(source_dir() + "/translations/ovra_en.ts");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    std::map<QString, QString> table;
    QString context, source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation") && context == "Translator")
            table[source] = xml.readElementText();
    }
    return table;
}

TEST(Translator, GivesTheEnglishOfPageKeysAndLeavesUnknownKeys)
{
    Translator translator;
    const std::pair<const char*, const char*> rows[] = {
        {"OVRA_MODE", "Mode"}, {"AUTOMATIC_MODE", "Automatic"}, {"OVRA_TYPE", "Type"},
        {"OVRA_TIMER", "Timer"}, {"ADVANCED_SETTINGS_TITLE", "Advanced settings"},
        {"DAY_BLUE_LIGHT", "Day Light"}, {"MANUAL_AUTOMATIC_TOOGLE", "Manual/Automatic Toggle"},
        {"REST_MODE_MESSAGE", "You are in rest mode now. Edit the timer in the settings panel."},
        {"USE_MOUSE_INACTIVITY", "Use Mouse inactivity for pausing Work timer"},
        {"SKIP_REST", "Skip Rest"}, {"min", "min"}, {"sec", "sec"},
        {"REFRESH_DROPDOWNS_PLACEHOLDER", "REFRESH_DROPDOWNS_PLACEHOLDER"}, {"NO_SUCH_KEY", "NO_SUCH_KEY"},
    };
    EXPECT_EQ(translator.get_current_locale(), "en");
    for (const auto& [key, english] : rows)
        EXPECT_EQ(translator.GET_STRING(key), english) << key;
}

TEST(Translator, EveryPageKeyOfTheTableIsCompiledIn)
{
    Translator translator;
    const auto table = page_table();
    ASSERT_GT(table.size(), 258u);
    for (const auto& [key, english] : table) {
        EXPECT_FALSE(english.isEmpty()) << key.toStdString();
        EXPECT_EQ(translator.GET_STRING(key), english) << key.toStdString();
        // An upper-case key shown as itself would mean a missing text.
        if (key != key.toLower()) {
            EXPECT_NE(english, key) << key.toStdString();
        }
    }
}

TEST(Translator, EachNativeContextIsInTheEnglishTable)
{
    QTranslator table;
    ASSERT_TRUE(table.load(":/externals/translations/ovra_en.qm"));
    const std::pair<const char*, const char*> rows[] = {
        {"HiddenFeatures", "Invalid spell"},    {"MainWindow", "Sunrise time"},
        {"MainWindow", "Paused"},               {"TrayIcon", "&Automatic"},
        {"RestTimer", "minutes"},               {"SolarPosition", "hours"},
        {"ClockPosition", "sec"},               {"RestScreenLite", "Remaining"},
        {"TaskbarButton", " until rest"},       {"ExportSettings", "Save File..."},
        {"ImportSettings", "Open File..."},     {"input_dialog", "Enter your spell:"},
        {"message_box", "Warning"},
    };
    for (const auto& [context, source] : rows)
        EXPECT_EQ(table.translate(context, source), source) << context << ": " << source;
}

TEST(Translator, UnknownCodesFallBackToEnglishOnSourceTexts)
{
    Translator translator;
    for (const char* code : {"xx", "en_x", ""}) {
        testing::internal::CaptureStdout();
        translator.set_locale(code);
        EXPECT_EQ(testing::internal::GetCapturedStdout(),
                  std::string("Failed to load translation file for ") + code + "\n");
        EXPECT_EQ(translator.get_current_locale(), "en") << code;
        EXPECT_EQ(translator.GET_STRING("OVRA_MODE"), "OVRA_MODE") << code;
    }
    translator.set_locale("en");
    EXPECT_EQ(translator.GET_STRING("OVRA_MODE"), "Mode");
}

TEST(Translator, LanguageFromCountry)
{
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"Bulgaria", "BG", "bg"}, {"Bulgaria", "", "bg"}, {"", "BG", "bg"},
        {"bulgaria", "bg", "en"}, {"Greece", "GR", "en"}, {"", "", "en"},
    };
    for (const auto& [name, code, language] : rows)
        EXPECT_EQ(Translator::get_language_from_country(name, code), language) << name << code;
}

// Each text that code marks for translation has its entry in the English
// table, in the context the code asks it from.
TEST(Translator, EveryMarkedTextHasAnEnglishEntry)
{
    const QString lupdate = QLibraryInfo::path(QLibraryInfo::BinariesPath) + "/lupdate";
    if (!QFile::exists(lupdate))
        GTEST_SKIP() << "no lupdate";
    QTemporaryDir dir;
    const QString copy = dir.filePath("ovra_en.ts");
    ASSERT_TRUE(QFile::copy(source_dir() + "/translations/ovra_en.ts", copy));
    QProcess run;
    run.start(lupdate, {"-locations", "none", source_dir() + "/src", "-ts", copy});
    ASSERT_TRUE(run.waitForFinished(60000));
    const QString report = run.readAllStandardOutput() + run.readAllStandardError();
    EXPECT_TRUE(report.contains(" (0 new and ")) << report.toStdString();
}

// ---------------------------------------------------------------- controller

class Language : public ControllerTest
{
protected:
    void start_with(const char* language, bool first_start)
    {
        store_values["Language"] = language;
        store_values["IsFirstStart"] = first_start;
        start();
    }

    // Ends the program of one row, so that the next row starts afresh.
    void stop()
    {
        window.reset();
        delete save_manager;
        delete solar_position;
        delete clock_position;
        save_manager = nullptr;
        solar_position = nullptr;
        clock_position = nullptr;
    }
};

TEST_F(Language, TheStartInstallsTheStoredLanguage)
{
    testing::internal::CaptureStdout();
    start_with("xx", false);
    EXPECT_NE(testing::internal::GetCapturedStdout().find("Failed to load translation file for xx\n"),
              std::string::npos);
    EXPECT_EQ(window->get_language_code(), "en");
    EXPECT_EQ(window->GET_STRING("OVRA_MODE"), "OVRA_MODE");
}

TEST_F(Language, AChangeStoresAndTranslatesOnceAndAnEqualValueStops)
{
    struct Row { const char* stored; const char* chosen; bool force; int emits; };
    const Row rows[] = {
        {"en", "en", false, 0}, {"xx", "en", false, 1}, {"en", "de", false, 1}, {"en", "en", true, 1},
    };
    for (const Row& row : rows) {
        start_with(row.stored, false);
        QSignalSpy translated(window.get(), &MainWindow::translate);
        QSignalSpy dropdown(window.get(), &MainWindow::set_language_dropdown_value);
        if (row.force)
            window->language_changed_force(row.chosen, true);
        else
            window->language_changed(row.chosen);
        EXPECT_EQ(translated.count(), row.emits) << row.stored << " -> " << row.chosen;
        EXPECT_EQ(dropdown.count(), row.emits) << row.stored << " -> " << row.chosen;
        EXPECT_EQ(stored("Language"), row.emits ? row.chosen : row.stored);
        stop();
    }
}

// A second lookup, or one on a later start, leaves the language alone.
TEST_F(Language, ThePlaceChoosesTheLanguageAtFirstStartOnly)
{
    struct Row { bool first_start; const char* country; const char* code; const char* language; };
    const Row rows[] = {
        {true, "Bulgaria", "BG", "bg"}, {true, "Greece", "GR", "en"}, {false, "Bulgaria", "BG", "de"},
    };
    for (const Row& row : rows) {
        start_with("de", row.first_start);
        QSignalSpy translated(window.get(), &MainWindow::translate);
        window->localize_ovra(row.country, row.code);
        window->localize_ovra("Bulgaria", "BG");
        EXPECT_EQ(stored("Language"), row.language) << row.country;
        EXPECT_EQ(save_manager->store()->value("Language").toString(), row.language) << row.country;
        EXPECT_EQ(translated.count(), row.first_start ? 1 : 0) << row.country;
        stop();
    }
}

} // namespace
