#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Splits one line into typed words and tests it against small patterns such
// as "set day brightness to %d". The whole syntax of the spells, and of the
// trigger lines, is this class: a pattern matches only a line with as many
// words, each word equal to the pattern's word or of the type it asks for
// ("%b" bool, "%d" int, "%f" int or double, "%s" any other word).
// It works on bytes; without case sensitivity both sides are lower-cased.
class Tokenizer
{
public:
    struct Token
    {
        enum Type { BOOL = 0, DOUBLE = 1, INT = 2, STRING = 3 };

        Type type = STRING;
        std::string text;
        double double_value = 0.0;
        int64_t int_value = 0;
        bool bool_value = false;
    };

    Tokenizer(const std::string& text, bool case_sensitive);

    void parse(const std::string& text);
    bool match(const std::string& pattern) const;

    int size() const { return static_cast<int>(tokens.size()); }
    const Token& operator[](int index) const { return tokens[static_cast<size_t>(index)]; }

    // Read with no check of the index or of the type.
    bool Bool(int index) const { return (*this)[index].bool_value; }
    // The low 32 bits of the stored value.
    int Int(int index) const;
    int64_t Int64(int index) const { return (*this)[index].int_value; }
    const std::string& String(int index) const { return (*this)[index].text; }
    // An int token reads as its value converted.
    double Double(int index) const;
    float Float(int index) const { return static_cast<float>(Double(index)); }

    // The classification of one word, as parse() makes it.
    static Token classify(const std::string& word);

private:
    std::string lowered(std::string text) const;

    std::vector<Token> tokens;
    bool case_sensitive;
};
