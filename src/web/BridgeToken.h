#pragma once

#include <QByteArray>
#include <QString>

// The secret a bridge server hands out with its addresses. Whoever holds it
// may read the pages and drive a native object, so it is drawn from the
// system's random source and never compared in a way that leaks how much of
// a guess was right.
namespace BridgeToken {

// 256 random bits as 64 lower-case hex digits.
QString generate();

// True when both are the same bytes. The time taken depends on the length
// of `expected` alone, never on where the first difference lies.
bool matches(const QByteArray& expected, const QByteArray& given);

} // namespace BridgeToken
