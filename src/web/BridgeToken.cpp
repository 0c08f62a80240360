#include "web/BridgeToken.h"

#include <QRandomGenerator>
#include <array>

namespace BridgeToken {

QString generate()
{
    std::array<quint32, 8> words;
    QRandomGenerator::system()->fillRange(words.data(), int(words.size()));
    const QByteArray raw(reinterpret_cast<const char*>(words.data()), int(sizeof(words)));
    return QString::fromLatin1(raw.toHex());
}

bool matches(const QByteArray& expected, const QByteArray& given)
{
    // Every byte of `expected` is visited and folded into one accumulator;
    // a given text of another length reads as zeros past its end and fails
    // through the length term, so neither the length nor the first differing
    // position ends the loop early.
    unsigned int difference = expected.size() != given.size() ? 1u : 0u;
    const qsizetype given_size = given.size();
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const unsigned char theirs = i < given_size ? static_cast<unsigned char>(given[i]) : 0;
        difference |= static_cast<unsigned char>(expected[i]) ^ theirs;
    }
    return difference == 0 && !expected.isEmpty();
}

} // namespace BridgeToken
