#include "spells/Tokenizer.h"

#include <cctype>
#include <sstream>

namespace {

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

bool read_bool(const std::string& word, bool* value)
{
    static const char* const true_words[] = {"true", "on", "yes", "enable", "use", "start"};
    static const char* const false_words[] = {"false", "off", "no", "disable", "halt", "stop"};
    for (const char* w : true_words)
        if (word == w) {
            *value = true;
            return true;
        }
    for (const char* w : false_words)
        if (word == w) {
            *value = false;
            return true;
        }
    return false;
}

// A sign may lead; the rest is digits, and at most `points` of them '.'.
// Returns the count of points seen, or -1 for any other character or for
// a word with no digit at all.
int number_shape(const std::string& word)
{
    size_t i = (!word.empty() && (word[0] == '+' || word[0] == '-')) ? 1 : 0;
    int points = 0;
    bool digits = false;
    for (; i < word.size(); ++i) {
        if (word[i] == '.')
            ++points;
        else if (is_digit(word[i]))
            digits = true;
        else
            return -1;
    }
    return digits ? points : -1;
}

// The stream must take the whole word and must not overflow.
template <class T>
bool read_number(const std::string& word, T* value)
{
    std::istringstream stream(word);
    stream >> *value;
    return !stream.fail() && stream.eof();
}

} // namespace

Tokenizer::Tokenizer(const std::string& text, bool case_sensitive) : case_sensitive(case_sensitive)
{
    parse(text);
}

std::string Tokenizer::lowered(std::string text) const
{
    if (!case_sensitive)
        for (char& c : text)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

Tokenizer::Token Tokenizer::classify(const std::string& word)
{
    Token token;
    token.text = word;
    if (read_bool(word, &token.bool_value)) {
        token.type = Token::BOOL;
    } else if (number_shape(word) == 0 && read_number(word, &token.int_value)) {
        token.type = Token::INT;
    } else if (number_shape(word) == 1 && read_number(word, &token.double_value)) {
        token.type = Token::DOUBLE;
    } else {
        token.int_value = 0;
        token.double_value = 0.0;
        token.type = Token::STRING;
    }
    return token;
}

void Tokenizer::parse(const std::string& text)
{
    tokens.clear();
    if (text.empty())
        return;
    std::istringstream stream(lowered(text));
    std::string word;
    while (stream >> word)
        tokens.push_back(classify(word));
}

bool Tokenizer::match(const std::string& pattern) const
{
    if (tokens.empty())
        return false;
    std::istringstream stream(lowered(pattern));
    std::string word;
    for (const Token& token : tokens) {
        if (!(stream >> word))
            return false;
        bool fits;
        if (word == "%b")
            fits = token.type == Token::BOOL;
        else if (word == "%f")
            fits = token.type == Token::DOUBLE || token.type == Token::INT;
        else if (word == "%d")
            fits = token.type == Token::INT;
        else if (word == "%s")
            fits = token.type == Token::STRING;
        else
            fits = token.text == word;
        if (!fits)
            return false;
    }
    // Only a pattern read to its very end matches: a further word, or even
    // a trailing blank, leaves the stream short of it.
    return stream.eof();
}

int Tokenizer::Int(int index) const
{
    return static_cast<int>(static_cast<uint32_t>(static_cast<uint64_t>((*this)[index].int_value)));
}

double Tokenizer::Double(int index) const
{
    const Token& token = (*this)[index];
    return token.type == Token::INT ? static_cast<double>(token.int_value) : token.double_value;
}
