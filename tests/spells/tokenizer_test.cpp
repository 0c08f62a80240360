// The spell language's words and patterns.
#include <gtest/gtest.h>

#include "spells/Tokenizer.h"

namespace {

using Type = Tokenizer::Token::Type;

TEST(Tokenizer, ClassifiesEachWordByTheFirstTypeThatFits)
{
    struct Row { const char* word; Type type; };
    const Row rows[] = {
        // The twelve bool words, and near misses.
        {"true", Type::BOOL}, {"on", Type::BOOL}, {"yes", Type::BOOL}, {"enable", Type::BOOL},
        {"use", Type::BOOL}, {"start", Type::BOOL}, {"false", Type::BOOL}, {"off", Type::BOOL},
        {"no", Type::BOOL}, {"disable", Type::BOOL}, {"halt", Type::BOOL}, {"stop", Type::BOOL},
        {"enabled", Type::STRING}, {"tru", Type::STRING}, {"%d", Type::STRING}, {"=", Type::STRING},
        // Ints: a sign, then digits only, within 64 bits.
        {"0", Type::INT}, {"+12", Type::INT}, {"-5", Type::INT}, {"007", Type::INT},
        {"9223372036854775807", Type::INT}, {"-9223372036854775808", Type::INT},
        {"9223372036854775808", Type::STRING}, {"99999999999999999999", Type::STRING},
        {"+-1", Type::STRING}, {"1-", Type::STRING},
        // Doubles: exactly one point, digits on at least one side, no exponent.
        {"5.", Type::DOUBLE}, {".5", Type::DOUBLE}, {"-.5", Type::DOUBLE}, {"+1.25", Type::DOUBLE},
        {"50.0", Type::DOUBLE}, {"1.2.3", Type::STRING}, {"1e3", Type::STRING},
        {"1.5e3", Type::STRING}, {"0x1A", Type::STRING},
        {".", Type::STRING}, {"+", Type::STRING}, {"-", Type::STRING}, {"ünï", Type::STRING},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Tokenizer::classify(row.word).type, row.type) << row.word;
}

TEST(Tokenizer, ValuesOfTheTokensLoweredUnlessCaseSensitive)
{
    const Tokenizer t("ON +12 -7 .5 4294972296 word 5.", false);
    ASSERT_EQ(t.size(), 7);
    EXPECT_TRUE(t.Bool(0));
    EXPECT_EQ(t.Int(1), 12);
    EXPECT_EQ(t.Int(2), -7);
    EXPECT_DOUBLE_EQ(t.Double(2), -7.0); // an int reads as a double too
    EXPECT_DOUBLE_EQ(t.Double(3), 0.5);
    EXPECT_FLOAT_EQ(t.Float(6), 5.0f);
    // Int keeps the low 32 bits: 2^32 + 5000.
    EXPECT_EQ(t.Int64(4), 4294972296LL);
    EXPECT_EQ(t.Int(4), 5000);
    EXPECT_EQ(t.String(5), "word");
    EXPECT_FALSE(Tokenizer("stop", false).Bool(0));
    EXPECT_EQ(Tokenizer("SET  Day\t", false).String(1), "day");
    EXPECT_EQ(Tokenizer("SET", true).String(0), "SET");
    EXPECT_EQ(Tokenizer(" \t\n ", false).size(), 0);
}

TEST(Tokenizer, MatchesWholeLinesWordByWord)
{
    struct Row { const char* line; const char* pattern; bool case_sensitive; bool matches; };
    const Row rows[] = {
        // Literal words, case and spacing.
        {"SET Day Brightness TO 50", "set day brightness to %d", false, true},
        {" \tSET  Day\nBrightness\r\vTO 50  ", "set day brightness to %d", false, true},
        {"sb 50", "SB %d", false, true}, {"SB 50", "sb %d", true, false}, {"sb 50", "sb %d", true, true},
        // Placeholders by type.
        {"sb 50", "sb %f", false, true}, {"sb 50.0", "sb %d", false, false},
        {"sb 50.0", "sb %f", false, true}, {"sb fifty", "sb %s", false, true},
        {"sb 50", "sb %s", false, false}, {"on gamma fixer", "%b gamma fixer", false, true},
        {"maybe gamma fixer", "%b gamma fixer", false, false}, {"start", "%s", false, false},
        {"TRUE", "%b", true, false}, {"true", "%b", true, true},
        // A bool or int word still equals its literal.
        {"enable", "enable", false, true}, {"5", "5", false, true},
        // The count of words must be equal.
        {"sb 50 60", "sb %d", false, false}, {"sb", "sb %d", false, false},
        {"sb 50", "sb %d ", false, false}, {"sb 50", " sb %d", false, true},
        // No tokens match nothing.
        {"", "", false, false}, {" \t\n ", "%s", false, false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Tokenizer(row.line, row.case_sensitive).match(row.pattern), row.matches)
            << '"' << row.line << "\" against \"" << row.pattern << '"';
}

} // namespace
