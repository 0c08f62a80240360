// The spell interpreter against a target that writes down what it is asked:
// which handler each spell reaches, the checks of values, the messages and
// the closing save.
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "spells/HiddenFeatures.h"
#include "spells/ISpellTarget.h"
#include "spells/SpellHelp.h"
#include "spells/SpellTable.h"
#include "spells/Tokenizer.h"

namespace {

class RecordingTarget : public ISpellTarget
{
public:
    QStringList log;
    std::map<QString, QVariant> settings{{"UseHiddenFeaturesNotifications", true}};

    void note(const QString& what, const QVariant& value = {})
    {
        log << (value.isValid() ? what + ' ' + value.toString() : what);
    }
    QVariant setting(const char* key) const override { return settings.at(key); }
    void show_tray_icon_message(const QString& title, const QString& text) override
    {
        log << "message " + title + " | " + text;
    }
    void save_settings() override { note("save"); }
    void open_url(const QString& url) override { note("open_url", url); }
    void open_spells_help() override { note("help"); }
    void bring_to_front() override { note("bring_to_front"); }
    void day_temperature_changed(int v) override { note("day_temperature", v); }
    void night_temperature_changed(int v) override { note("night_temperature", v); }
    void day_brightness_changed(int v) override { note("day_brightness", v); }
    void night_brightness_changed(int v) override { note("night_brightness", v); }
    void night_start_time_changed(int v) override { note("night_start", v); }
    void night_end_time_changed(int v) override { note("night_end", v); }
    void use_manual_color_settings_changed(bool v) override { note("manual_temperature", v); }
    void use_manual_brightness_changed(bool v) override { note("manual_brightness", v); }
    void use_manual_night_duration_changed(bool v) override { note("manual_night", v); }
    void use_manual_location_changed(bool v) override { note("manual_location", v); }
    void latitude_changed(float v) override { note("latitude", v); }
    void longitude_changed(float v) override { note("longitude", v); }
    void preserve_gamma_changed(bool v) override { note("preserve_gamma", v); }
    void use_software_cursor_changed(bool v) override { note("software_cursor", v); }
    void use_gamma_fixer_changed(bool v) override { note("gamma_fixer", v); }
    void start_on_startup_changed(bool v) override { note("startup", v); }
    void ignore_monitor_changed(int m, bool i) override
    {
        note("ignore_monitor", QString::number(m) + ' ' + QVariant(i).toString());
    }
    void reset_colors() override { note("reset_colors"); }
    void toggle_inverted_gamma() override { note("invert"); }
    void reset_settings_in_store() override { note("reset_store"); }
    void use_hidden_features_notifications_changed(bool v) override
    {
        settings["UseHiddenFeaturesNotifications"] = v;
        note("notifications", v);
    }
    void use_spinning_tray_icon_changed(bool v) override { note("spinning", v); }
    void use_ghost_icon_changed(bool v) override { note("ghost", v); }
    void allow_multiple_instances_changed(bool v) override { note("multiple", v); }
    void use_keyboard_hook_changed(bool v) override { note("keyboard_hook", v); }
    void enable_conflicting_applications_changed(bool v) override { note("conflicting", v); }
    void ui_scale_changed(int v) override { note("ui_scale", v); }
    void enable_page(bool e, const QString& p) override
    {
        note("page", QVariant(e).toString() + ' ' + p);
    }
    void import_settings() override { note("import"); }
    void import_settings_from_string(const QString& t) override { note("import_string", t); }
    void export_settings() override { note("export"); }
    void export_settings_as_string() override { note("export_string"); }
};

class Spells : public ::testing::Test
{
protected:
    // What a spell did, messages left out, the closing save checked.
    QStringList cast(const char* spell)
    {
        target.log.clear();
        features.activate_hidden_feature(spell);
        EXPECT_EQ(target.log.count("save"), spell == std::string("on gamma fixer") ? 2 : 1) << spell;
        EXPECT_EQ(target.log.last(), "save") << spell;
        QStringList effects;
        for (const QString& entry : target.log)
            if (!entry.startsWith("message ") && entry != "save")
                effects << entry;
        return effects;
    }
    QStringList messages() const { return target.log.filter(QRegularExpression("^message ")); }

    RecordingTarget target;
    HiddenFeatures features{&target};
};

TEST_F(Spells, EachSpellReachesItsHandler)
{
    const std::pair<const char*, const char*> rows[] = {
        {"help", "help"}, {"Open", "bring_to_front"}, {"open ovra", "bring_to_front"},
        {"show ui", "bring_to_front"},
        {"st 3000", "night_temperature 3000"}, {"set temperature to 2700", "night_temperature 2700"},
        {"sdt 5000", "day_temperature 5000"}, {"snt 10000", "night_temperature 10000"},
        {"SB 50", "night_brightness 50"}, {"sdb 90", "day_brightness 90"},
        {"set night brightness to 10", "night_brightness 10"},
        {"on gamma fixer", "gamma_fixer true"}, {"stop start at startup", "startup false"},
        {"yes tray icon rotation", "spinning true"},
        {"use manual temperature", "manual_temperature true"},
        {"off manual brightness", "manual_brightness false"},
        {"enable monitor 2", "ignore_monitor 2 false"}, {"disable monitor 0", "ignore_monitor 0 true"},
        {"reset", "reset_colors"}, {"reset colors", "reset_colors"}, {"reset settings", "reset_store"},
        {"invert colors", "invert"}, {"batman mode", "day_temperature 0|night_temperature 0"},
        {"disable gamma preservation", "preserve_gamma false"},
        {"on manual location", "manual_location true"}, {"set latitude to 51", "latitude 51"},
        {"set longitude to -0.5", "longitude -0.5"},
        {"enable software mouse", "software_cursor true"},
        {"no software cursor", "software_cursor false"},
        {"true manual night duration", "manual_night true"},
        {"set night start time to 21", "night_start 21"}, {"set night end time to 7", "night_end 7"},
        {"halt conflicting applications", "conflicting false"},
        {"disable page moon", "page false moon"},
        {"enable page Color Triggers", "page true color triggers"},
        {"on ghost icon", "ghost true"}, {"on multiple instances", "multiple true"},
        {"off keyboard hook", "keyboard_hook false"},
        {"import", "import"}, {"import AbC=1", "import_string abc=1"}, {"export", "export"},
        {"export string", "export_string"}, {"set ui scale to 2", "ui_scale 2"},
        {"music", "open_url https://ovra.morvenik.example/music/"},
        // Accepted with no effect.
        {"on hidden features", ""}, {"off calibration", ""}, {"on calibration at startup", ""},
        {"yes create shortcuts automatically", ""}, {"on inverted icons", ""}, {"on deadpoll", ""},
        {"test = vlc", ""},
    };
    for (const auto& [spell, effects] : rows)
        EXPECT_EQ(cast(spell).join('|'), effects) << spell;
}

// A line made from each form reaches its own row: no form is shadowed by
// one above it.
TEST_F(Spells, NoFormIsHiddenByAnEarlierOne)
{
    const std::pair<const char*, const char*> samples[] = {
        {"%b", "on"}, {"%d", "7"}, {"%f", "1.5"}, {"%s", "word"}};
    const auto& table = spell_table();
    for (size_t row = 0; row < table.size(); ++row)
        for (const char* form : table[row].forms) {
            if (!form)
                continue;
            QString line = form;
            for (const auto& [placeholder, value] : samples)
                line.replace(placeholder, value);
            const Tokenizer words(line.toStdString(), false);
            size_t first = 0;
            while (first < table.size()
                   && !std::any_of(std::begin(table[first].forms), std::end(table[first].forms),
                                   [&](const char* f) { return f && words.match(f); }))
                ++first;
            EXPECT_EQ(first, row) << form;
        }
}

TEST_F(Spells, ValuesOutOfRangeAreRefusedWithTheirTexts)
{
    struct Row { const char* spell; const char* effect; const char* title; const char* text; };
    const Row rows[] = {
        {"st 0", "night_temperature 0", "Temperature changed", "Color temperature changed to 0K"},
        {"st 10001", "", "Invalid temperature",
         "10001 is invalid value for Color temperature. Use number between 0 and 10000."},
        {"sdt -1", "", "Invalid temperature",
         "-1 is invalid value for Color temperature. Use number between 0 and 10000."},
        {"sb 100", "night_brightness 100", "Brightness changed", "Brightness changed to 100%"},
        {"sb 5", "", "Invalid brightness",
         "5 is invalid value for Brightness. Use number between 10 and 100."},
        {"sdb 101", "", "Invalid brightness",
         "101 is invalid value for Brightness. Use number between 10 and 100."},
        {"snb -5", "", "Invalid brightness",
         "-5 is invalid value for Brightness. Use number between 10 and 100."},
        {"set night start time to 24", "night_start 24", "Night start time changed",
         "Manual night start time changed to 24h"},
        {"set night start time to 25", "", "Invalid Night start time",
         "25 is invalid value for Night start time. Use number between 0 and 24."},
        {"set night end time to -1", "", "Invalid Night end time",
         "-1 is invalid value for Night end time. Use number between 0 and 24."},
        // The low 32 bits of 2^32 + 3000.
        {"st 4294970296", "night_temperature 3000", "Temperature changed",
         "Color temperature changed to 3000K"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(cast(row.spell).join('|'), row.effect) << row.spell;
        EXPECT_EQ(messages(), QStringList{QString("message %1 | %2").arg(row.title, row.text)})
            << row.spell;
    }
}

TEST_F(Spells, AnUnknownSpellIsReportedAsTyped)
{
    EXPECT_TRUE(cast("Sb fifty").isEmpty());
    EXPECT_EQ(messages(), QStringList{
        "message Invalid spell | The spell \"Sb fifty\" seems wrong. Check the syntax or try with "
        "some other hidden feature.\nUse \"help\" to see the list of all hidden features :)"});
    EXPECT_TRUE(cast("").isEmpty());
    EXPECT_EQ(messages().size(), 1);
}

TEST_F(Spells, MessagesFollowTheirSwitchAndSomeComeFirst)
{
    cast("no software cursor");
    EXPECT_TRUE(target.log.first().startsWith("message Hardware cursor enabled |"));
    cast("disable hidden features notifications");
    EXPECT_TRUE(target.log.first().startsWith("message Notifications disabled |"));
    // Now silent: also for an invalid spell, and for switching them back on.
    EXPECT_EQ(cast("sb 5"), QStringList());
    EXPECT_TRUE(messages().isEmpty());
    cast("enable hidden features notifications");
    EXPECT_TRUE(messages().isEmpty());
    cast("disable monitor 3");
    EXPECT_EQ(messages(), QStringList{"message Monitor 3 disabled | "
                                      "Ovra will not apply color changes to Monitor 3"});
    cast("set latitude to 51.5");
    EXPECT_EQ(messages(), QStringList{QString("message Latitude changed | Latitude changed to 51.5")
                                      + QChar(0x00B0)});
}

TEST(SpellHelp, TheProgramsPageIsTheTablesPage)
{
    QFile file(qEnvironmentVariable("OVRA_SOURCE_DIR") + "/html/help/spells.html");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "OVRA_SOURCE_DIR is not set";
    EXPECT_TRUE(file.readAll().toStdString() == SpellHelp::page())
        << "html/help/spells.html is out of date: cmake --build build --target spell-help";
    // And the program carries that page.
    QFile resource(":/html/help/spells.html");
    ASSERT_TRUE(resource.open(QIODevice::ReadOnly));
    EXPECT_TRUE(resource.readAll().toStdString() == SpellHelp::page());
}

} // namespace
