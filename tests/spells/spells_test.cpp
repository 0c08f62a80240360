// Spells through the real controller: what each one changes, the checks of
// values and the replies on the tray, and ten thousand random lines that
// change nothing their spell is not about.
#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <sstream>

#include "ControllerFixture.h"
#include "FakeTray.h"
#include "spells/SpellHelp.h"
#include "spells/SpellTable.h"
#include "spells/Tokenizer.h"

namespace {

using namespace controller_test;

// Keeps a cast "help" or fixed word from starting a browser.
struct UrlCatcher : QObject
{
    Q_OBJECT
public slots:
    void open(const QUrl& url) { opened << url.toString(); }

public:
    QStringList opened;
};

const SpellRow* matching_row(const std::string& line)
{
    const Tokenizer words(line, false);
    for (const SpellRow& row : spell_table())
        for (const char* form : row.forms)
            if (form && words.match(form))
                return &row;
    return nullptr;
}

// Each spell and the settings it changes, starting from the fixture's store
// and the defaults, one after the other. They also bound the fuzz below.
const std::pair<const char*, const char*> effects[] = {
    {"st 3000", "NightTemperature=3000"}, {"set temperature to 2700", "NightTemperature=2700"},
    {"sdt 5500", "DayTemperature=5500"}, {"snt 10000", "NightTemperature=10000"},
    {"SB 50", "NightBrightness=50"}, {"set brightness to 40", "NightBrightness=40"},
    {"sdb 90", "DayBrightness=90"}, {"set night brightness to 10", "NightBrightness=10"},
    {"batman mode", "DayTemperature=0|NightTemperature=0"}, {"off gamma fixer", "UseGammaFixer=false"},
    {"stop start at startup", "StartOnStartup=false"}, {"no tray icon rotation", "UseSpinningTrayIcon=false"},
    {"off manual temperature", "UseManualColorSettings=false"},
    {"off manual brightness", "UseManualBrightness=false"}, {"off gamma preservation", "PreserveGamma=false"},
    {"on manual location", "UseManualLocation=true"}, {"enable software mouse", "UseSoftwareCursor=true"},
    {"true manual night duration", "UseManualNightDuration=true"},
    {"set night start time to 21", "NightStartTimeHours=21"}, {"set night end time to 7", "NightEndTimeHours=7"},
    {"on conflicting applications", "EnableConflictingApplications=true"}, {"on ghost icon", "UseGhostIcon=true"},
    {"on multiple instances", "AllowMultipleInstances=true"}, {"off keyboard hook", "UseKeyboardHook=false"},
    {"set ui scale to 2", "UiScale=2"}, {"invert colors", "UseInvertedColors=true"},
    {"off hidden features notifications", "UseHiddenFeaturesNotifications=false"},
    // The store only: the running values stay. Then spells accepted with nothing to store.
    {"reset settings", ""}, {"on hidden features", ""}, {"off calibration", ""}, {"on deadpoll", ""},
    {"on calibration at startup", ""}, {"yes create shortcuts automatically", ""},
    {"on inverted icons", ""}, {"test = vlc", ""},
};

class Spells : public ControllerTest
{
protected:
    void SetUp() override
    {
        // Every spell ends in a synced save: in memory, ten thousand of them
        // take seconds instead of minutes.
        if (memory_folder.isValid())
            QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, memory_folder.path());
        ControllerTest::SetUp();
        for (const char* scheme : {"file", "http", "https"})
            QDesktopServices::setUrlHandler(scheme, &urls, "open");
    }
    void TearDown() override
    {
        for (const char* scheme : {"file", "http", "https"})
            QDesktopServices::unsetUrlHandler(scheme);
        if (window)
            window->tray_icon = nullptr;
        ControllerTest::TearDown();
    }
    void start_with_tray()
    {
        start_settled();
        window->tray_icon = &tray;
    }

    // "Key=value" for each setting that changed, the advanced view's shadows
    // left out.
    QString cast(const QString& spell)
    {
        tray.messages.clear();
        const SettingsMap before = window->settings;
        window->activate_hidden_feature(spell);
        QStringList changes;
        for (const auto& [key, value] : window->settings) {
            const auto old = before.find(key);
            if ((old == before.end() || old->second != value) && !key.startsWith("Advanced"))
                changes << key + '=' + value.toString();
        }
        return changes.join('|');
    }

    QTemporaryDir memory_folder{"/dev/shm/ovra-spells-XXXXXX"};
    UrlCatcher urls;
    FakeTray tray;
};

TEST_F(Spells, EachSpellChangesItsSettingAndTheStoreFollows)
{
    start_with_tray();
    for (const auto& [spell, changes] : effects)
        EXPECT_EQ(cast(spell), QString(changes)) << spell;
    // Every spell ends in a full save: the file holds the running values,
    // also after "reset settings" emptied it.
    EXPECT_EQ(save_manager->store()->value("NightTemperature").toInt(), 0);
    EXPECT_EQ(save_manager->store()->value("UiScale").toInt(), 2);
}

TEST_F(Spells, SpellsBesideTheMap)
{
    start_with_tray();
    cast("disable monitor 2");
    EXPECT_EQ(window->ignored_monitors, std::vector<int>{2});
    cast("enable monitor 2");
    EXPECT_TRUE(window->ignored_monitors.empty());
    cast("disable page Color Triggers");
    EXPECT_TRUE(window->get_unused_pages().contains("color triggers"));
    cast("set latitude to 51");
    EXPECT_DOUBLE_EQ(window->get_latitude(), 51.0);
    cast("music");
    cast("");
    ASSERT_EQ(urls.opened.size(), 2);
    EXPECT_EQ(urls.opened[0], "https://ovra.morvenik.example/music/");
    QFile page(QUrl(urls.opened[1]).toLocalFile());
    ASSERT_TRUE(page.open(QIODevice::ReadOnly)) << urls.opened[1].toStdString();
    EXPECT_TRUE(page.readAll().toStdString() == SpellHelp::page());
}

// One after the other: the replies, and silence once they are switched off.
TEST_F(Spells, ValuesOutOfRangeAreRefusedAndEachSpellAnswers)
{
    start_with_tray();
    struct Row { const char* spell; const char* changes; const char* message; };
    const Row rows[] = {
        {"st 10000", "NightTemperature=10000", "Temperature changed: Color temperature changed to 10000K"},
        {"st 10001", "", "Invalid temperature: 10001 is invalid value for Color temperature. Use number between 0 and 10000."},
        {"sdt -1", "", "Invalid temperature: -1 is invalid value for Color temperature. Use number between 0 and 10000."},
        {"sb 100", "NightBrightness=100", "Brightness changed: Brightness changed to 100%"},
        {"sb 5", "", "Invalid brightness: 5 is invalid value for Brightness. Use number between 10 and 100."},
        {"sdb 101", "", "Invalid brightness: 101 is invalid value for Brightness. Use number between 10 and 100."},
        {"snb -5", "", "Invalid brightness: -5 is invalid value for Brightness. Use number between 10 and 100."},
        {"set night start time to 24", "NightStartTimeHours=24", "Night start time changed: Manual night start time changed to 24h"},
        {"set night start time to 25", "", "Invalid Night start time: 25 is invalid value for Night start time. Use number between 0 and 24."},
        {"set night end time to -1", "", "Invalid Night end time: -1 is invalid value for Night end time. Use number between 0 and 24."},
        // The low 32 bits of 2^32 + 3000.
        {"st 4294970296", "NightTemperature=3000", "Temperature changed: Color temperature changed to 3000K"},
        {"Sb fifty", "", "Invalid spell: The spell \"Sb fifty\" seems wrong. Check the syntax or try with some other hidden feature.\nUse \"help\" to see the list of all hidden features :)"},
        {"disable monitor 3", "", "Monitor 3 disabled: Ovra will not apply color changes to Monitor 3"},
        // Told first, then done.
        {"no software cursor", "", "Hardware cursor enabled: Color changes will not apply on the cursor. If you don't like the bright blue cursor at night use enable software cursor to make apply color changes on the cursor."},
        {"disable hidden features notifications", "UseHiddenFeaturesNotifications=false", "Notifications disabled: Hidden features notifications are disabled. This is the last notification that you will see"},
        {"sb 5", "", nullptr},
        {"enable hidden features notifications", "UseHiddenFeaturesNotifications=true", nullptr},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(cast(row.spell), QString(row.changes)) << row.spell;
        EXPECT_EQ(tray.messages, row.message ? QStringList{row.message} : QStringList()) << row.spell;
    }
}

// A line made from each form reaches its own row: no form is shadowed by
// one above it.
TEST(SpellTable, NoFormIsHiddenByAnEarlierOne)
{
    const std::pair<const char*, const char*> samples[] = {
        {"%b", "on"}, {"%d", "7"}, {"%f", "1.5"}, {"%s", "word"}};
    for (const SpellRow& row : spell_table())
        for (const char* form : row.forms) {
            if (!form)
                continue;
            QString line = form;
            for (const auto& [placeholder, value] : samples)
                line.replace(placeholder, value);
            EXPECT_EQ(matching_row(line.toStdString()), &row) << form;
        }
}

TEST(SpellHelp, ThePageInTheTreeAndInTheProgramIsTheTablesPage)
{
    QFile file(qEnvironmentVariable("OVRA_SOURCE_DIR") + "/html/help/spells.html");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "OVRA_SOURCE_DIR is not set";
    EXPECT_TRUE(file.readAll().toStdString() == SpellHelp::page())
        << "html/help/spells.html is out of date: cmake --build build --target spell-help";
    QFile resource(":/html/help/spells.html");
    ASSERT_TRUE(resource.open(QIODevice::ReadOnly));
    EXPECT_TRUE(resource.readAll().toStdString() == SpellHelp::page());
}

TEST_F(Spells, TenThousandRandomLinesChangeOnlyWhatTheirSpellIsAbout)
{
    start_with_tray();
    std::map<const SpellRow*, std::set<QString>> allowed;
    for (const auto& [spell, changes] : effects)
        for (const QString& change : QString(changes).split('|', Qt::SkipEmptyParts))
            allowed[matching_row(spell)].insert(change.section('=', 0, 0));

    // The table's words, values of every type and some noise.
    std::vector<std::string> words = {"on", "OFF", "Enable", "halt", "5", "-5", "0", "3000",
                                      "10001", "51.5", "-.5", "1e3", ".", "=", "%d", "%s",
                                      "99999999999999999999", "ünï", "\xff\xfe"};
    for (const SpellRow& row : spell_table())
        for (const char* form : row.forms)
            for (const QString& word : QString(form).split(' ', Qt::SkipEmptyParts))
                words.push_back(word.toStdString());
    std::mt19937 random(20260614);
    auto pick = [&](size_t n) { return static_cast<size_t>(random() % n); };
    auto any_word = [&] { return words[pick(words.size())]; };
    const char* blanks[] = {" ", "  ", "\t", " \n "};
    for (int i = 0; i < 10000; ++i) {
        // Half are the table's forms with random words in and around their
        // places, half are runs of random words.
        std::vector<std::string> line_words;
        if (pick(2) == 0) {
            std::istringstream form(spell_table()[pick(spell_table().size())].forms[0]);
            std::string word;
            while (form >> word)
                line_words.push_back(word[0] == '%' || pick(10) == 0 ? any_word() : word);
            if (pick(10) == 0)
                line_words.push_back(any_word());
        } else {
            for (size_t count = pick(7); count > 0; --count)
                line_words.push_back(any_word());
        }
        std::string line;
        for (std::string& word : line_words) {
            if (pick(4) == 0)
                std::transform(word.begin(), word.end(), word.begin(), ::toupper);
            line += blanks[pick(4)] + word;
        }
        const QString spell = QString::fromStdString(line);
        const SpellRow* row = matching_row(spell.isEmpty() ? "help" : spell.toStdString());
        // Import and export wait on a file dialog, or rewrite the whole store
        // by design; their text work has tests of its own.
        if (row && (QString(row->forms[0]).startsWith("import") || QString(row->forms[0]).startsWith("export")))
            continue;
        for (const QString& change : cast(spell).split('|', Qt::SkipEmptyParts))
            EXPECT_TRUE(row && allowed[row].count(change.section('=', 0, 0)))
                << '"' << line << "\" changed " << change.toStdString();
    }
}

} // namespace

#include "spells_test.moc"
