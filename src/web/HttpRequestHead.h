#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>

// The head of one HTTP/1.x request as it came off the wire: request line and
// header fields, nothing interpreted beyond what framing needs. Only bodiless
// GET requests are ever served, so a request that announces a body is marked
// and its body never read.
struct HttpRequestHead
{
    QByteArray method;
    QByteArray target;  // as sent: path, then ?query
    int minor_version = 1;
    QList<QPair<QByteArray, QByteArray>> fields;

    bool has_field(const QByteArray& name) const;
    // The first field of that name, whitespace trimmed; empty when missing.
    QByteArray value(const QByteArray& name) const;

    QByteArray path() const;
    QByteArray query() const;
    bool wants_close() const;
    bool has_body() const;
};

// Cuts one request head off the front of a buffer.
class HttpRequestParser
{
public:
    // Head and request line longer than this are refused unread.
    static const qsizetype MAX_HEAD_BYTES = 16 * 1024;
    static const int MAX_FIELDS = 100;

    enum class State { Incomplete, Done, Bad };
    struct Result
    {
        State state = State::Incomplete;
        HttpRequestHead head;
        qsizetype consumed = 0; // Done: bytes the head took, blank line included
        int status = 400;       // Bad: the status to answer with
        const char* reason = ""; // Bad: what was wrong, for the log line
    };

    static Result parse(const QByteArray& data);
};
