// Spells through the real controller: random lines never crash it, and a
// line that is no spell changes no setting; a spell changes only what it is
// about.
#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "ControllerFixture.h"
#include "spells/SpellTable.h"
#include "spells/Tokenizer.h"

namespace {

using namespace controller_test;

// Keeps a cast "help" or fixed word from starting a browser.
class UrlCatcher : public QObject
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

class SpellsInTheController : public ControllerTest
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
        ControllerTest::TearDown();
    }

    // The keys whose values differ between two maps.
    static std::set<QString> changed(const SettingsMap& before, const SettingsMap& after)
    {
        std::set<QString> keys;
        for (const auto& [key, value] : after) {
            const auto old = before.find(key);
            if (old == before.end() || old->second != value)
                keys.insert(key);
        }
        for (const auto& [key, value] : before)
            if (!after.count(key))
                keys.insert(key);
        return keys;
    }

    // The settings file as the program writes it.
    static std::unique_ptr<QSettings> file()
    {
        return std::make_unique<QSettings>(QCoreApplication::organizationName(),
                                           SaveManager::store_application_name());
    }

    QTemporaryDir memory_folder{"/dev/shm/ovra-spells-XXXXXX"};
    UrlCatcher urls;
};

// The words of the table, values of every type and some noise.
std::vector<std::string> vocabulary()
{
    std::set<std::string> words = {"on", "OFF", "Enable", "halt", "5", "-5", "0", "3000",
                                   "10001", "51.5", "-.5", "1e3", ".", "=", "%d", "%s",
                                   "99999999999999999999", "ünï", "\xff\xfe"};
    for (const SpellRow& row : spell_table())
        for (const char* form : row.forms)
            if (form) {
                std::istringstream stream(form);
                std::string word;
                while (stream >> word)
                    if (word[0] != '%')
                        words.insert(word);
            }
    return {words.begin(), words.end()};
}

TEST_F(SpellsInTheController, TenThousandRandomLinesChangeOnlyWhatTheirSpellIsAbout)
{
    store_values["UseHiddenFeaturesNotifications"] = true;
    start_settled();
    const std::vector<std::string> words = vocabulary();
    std::mt19937 random(20260614);
    auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    auto any_word = [&] { return words[static_cast<size_t>(pick(static_cast<int>(words.size())))]; };
    const char* blanks[] = {" ", "  ", "\t", " \n "};

    // A matched spell may change these; per monitor values change with the
    // plain key as monitor 0, and the advanced view keeps its shadows.
    const std::map<Spell, std::set<QString>> allowed = {
        {Spell::SetTemperature, {"NightTemperature"}},
        {Spell::SetNightTemperature, {"NightTemperature"}},
        {Spell::SetDayTemperature, {"DayTemperature"}}, {Spell::SetBrightness, {"NightBrightness"}},
        {Spell::SetNightBrightness, {"NightBrightness"}}, {Spell::SetDayBrightness, {"DayBrightness"}},
        {Spell::ZeroBlueLight, {"DayTemperature", "NightTemperature"}},
        {Spell::UseGammaFixer, {"UseGammaFixer"}}, {Spell::StartAtStartup, {"StartOnStartup"}},
        {Spell::UseSpinningTrayIcon, {"UseSpinningTrayIcon"}},
        {Spell::UseManualTemperature, {"UseManualColorSettings"}},
        {Spell::UseManualBrightness, {"UseManualBrightness"}},
        {Spell::PreserveGamma, {"PreserveGamma"}},
        {Spell::UseHiddenFeaturesNotifications, {"UseHiddenFeaturesNotifications"}},
        {Spell::UseManualLocation, {"UseManualLocation"}},
        {Spell::SetLatitude, {"Latitude"}}, {Spell::SetLongitude, {"Longitude"}},
        {Spell::UseSoftwareCursor, {"UseSoftwareCursor"}},
        {Spell::UseManualNightDuration, {"UseManualNightDuration"}},
        {Spell::SetNightStartTime, {"NightStartTimeHours", "NightStartTimeMinutes"}},
        {Spell::SetNightEndTime, {"NightEndTimeHours", "NightEndTimeMinutes"}},
        {Spell::EnableConflictingApplications, {"EnableConflictingApplications"}},
        {Spell::UseGhostIcon, {"UseGhostIcon"}},
        {Spell::AllowMultipleInstances, {"AllowMultipleInstances"}},
        {Spell::UseKeyboardHook, {"UseKeyboardHook"}}, {Spell::SetUiScale, {"UiScale"}},
        {Spell::InvertColors, {"UseInvertedColors"}},
    };

    int matched = 0;
    for (int i = 0; i < 10000; ++i) {
        // Half are the table's forms with random words in and around their
        // places, half are runs of random words.
        std::vector<std::string> line_words;
        if (pick(2) == 0) {
            const auto& table = spell_table();
            const SpellRow& row = table[static_cast<size_t>(pick(static_cast<int>(table.size())))];
            std::istringstream form(row.forms[0]);
            std::string word;
            while (form >> word)
                line_words.push_back(word[0] == '%' || pick(10) == 0 ? any_word() : word);
            if (pick(10) == 0)
                line_words.push_back(any_word());
        } else {
            for (int count = pick(7); count > 0; --count)
                line_words.push_back(any_word());
        }
        std::string line;
        for (std::string& word : line_words) {
            if (pick(4) == 0)
                std::transform(word.begin(), word.end(), word.begin(), ::toupper);
            line += blanks[pick(4)] + word;
        }
        const QString spell = QString::fromUtf8(line.c_str(), static_cast<int>(line.size()));
        const SpellRow* row = matching_row(spell.isEmpty() ? "help" : spell.toUtf8().toStdString());
        const SettingsMap before = window->settings;
        window->activate_hidden_feature(spell);
        std::set<QString> keys = changed(before, window->settings);
        for (auto key = keys.begin(); key != keys.end();)
            key = key->startsWith("Advanced") ? keys.erase(key) : std::next(key);
        if (!row) {
            EXPECT_TRUE(keys.empty()) << '"' << line << "\" matched nothing and changed "
                                      << keys.begin()->toStdString();
            continue;
        }
        ++matched;
        const auto may = allowed.find(row->spell);
        for (const QString& key : keys)
            EXPECT_TRUE(may != allowed.end() && may->second.count(key))
                << '"' << line << "\" changed " << key.toStdString();
    }
    // The vocabulary is the table's: a fair share of lines are spells.
    EXPECT_GT(matched, 100);
}

TEST_F(SpellsInTheController, ASpellChangesTheSettingAsThePageWouldAndSaves)
{
    start_settled();
    window->settings["DayTemperature"] = 6500;
    window->activate_hidden_feature("st 3000");
    EXPECT_EQ(stored("NightTemperature").toInt(), 3000);
    EXPECT_EQ(stored("DayTemperature").toInt(), 6500);
    EXPECT_EQ(file()->value("NightTemperature").toInt(), 3000);
    window->update_gamma();
    ASSERT_FALSE(writes().empty());
    EXPECT_EQ(writes().back().temperature, 3000);

    // Refused: nothing changes, and the file still gets every setting.
    file()->remove("NightBrightness");
    window->activate_hidden_feature("sb 5");
    EXPECT_EQ(stored("NightBrightness").toInt(), 80);
    EXPECT_EQ(file()->value("NightBrightness").toInt(), 80);
}

TEST_F(SpellsInTheController, ResetSettingsEmptiesTheFileAndTheRunningValuesReturnToIt)
{
    start_settled();
    window->activate_hidden_feature("snt 2700");
    file()->setValue("SomethingOld", 1);
    window->activate_hidden_feature("reset settings");
    EXPECT_EQ(stored("NightTemperature").toInt(), 2700);
    EXPECT_FALSE(file()->contains("SomethingOld"));
    EXPECT_EQ(file()->value("NightTemperature").toInt(), 2700);
}

TEST_F(SpellsInTheController, HelpOpensThePageFromTheProgram)
{
    start_settled();
    window->activate_hidden_feature("");
    ASSERT_EQ(urls.opened.size(), 1);
    QFile page(QUrl(urls.opened[0]).toLocalFile());
    ASSERT_TRUE(page.open(QIODevice::ReadOnly)) << urls.opened[0].toStdString();
    QFile resource(":/html/help/spells.html");
    ASSERT_TRUE(resource.open(QIODevice::ReadOnly));
    EXPECT_EQ(page.readAll(), resource.readAll());
}

} // namespace

#include "spell_fuzz_test.moc"
