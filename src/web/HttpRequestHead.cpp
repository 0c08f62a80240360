#include "web/HttpRequestHead.h"

#include <cstring>

namespace {

bool is_token_char(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')
        || (c != 0 && std::strchr("!#$%&'*+-.^_`|~", c) != nullptr);
}

bool is_token(const QByteArray& text)
{
    if (text.isEmpty())
        return false;
    for (char c : text)
        if (!is_token_char(c))
            return false;
    return true;
}

// Printable ASCII without spaces: what a browser sends as an origin-form
// target after percent-encoding everything else.
bool is_target(const QByteArray& text)
{
    if (!text.startsWith('/'))
        return false;
    for (char c : text)
        if (c <= 0x20 || c >= 0x7f)
            return false;
    return true;
}

// Field values may carry any byte but the control characters (tab aside).
bool is_field_value(const QByteArray& text)
{
    for (char c : text)
        if ((c >= 0 && c < 0x20 && c != '\t') || c == 0x7f)
            return false;
    return true;
}

bool names_equal(const QByteArray& a, const QByteArray& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool lists_token(const QByteArray& value, const QByteArray& token)
{
    for (const QByteArray& item : value.split(','))
        if (names_equal(item.trimmed(), token))
            return true;
    return false;
}

HttpRequestParser::Result bad(int status, const char* reason)
{
    HttpRequestParser::Result result;
    result.state = HttpRequestParser::State::Bad;
    result.status = status;
    result.reason = reason;
    return result;
}

} // namespace

bool HttpRequestHead::has_field(const QByteArray& name) const
{
    for (const auto& field : fields)
        if (names_equal(field.first, name))
            return true;
    return false;
}

QByteArray HttpRequestHead::value(const QByteArray& name) const
{
    for (const auto& field : fields)
        if (names_equal(field.first, name))
            return field.second;
    return {};
}

QByteArray HttpRequestHead::path() const
{
    qsizetype end = target.indexOf('?');
    const qsizetype hash = target.indexOf('#');
    if (end < 0 || (hash >= 0 && hash < end))
        end = hash;
    return end < 0 ? target : target.left(end);
}

QByteArray HttpRequestHead::query() const
{
    const qsizetype start = target.indexOf('?');
    if (start < 0)
        return {};
    const qsizetype hash = target.indexOf('#', start);
    return target.mid(start + 1, hash < 0 ? -1 : hash - start - 1);
}

bool HttpRequestHead::wants_close() const
{
    bool close = false, keep_alive = false;
    for (const auto& field : fields) {
        if (names_equal(field.first, "Connection")) {
            close = close || lists_token(field.second, "close");
            keep_alive = keep_alive || lists_token(field.second, "keep-alive");
        }
    }
    return close || (minor_version == 0 && !keep_alive);
}

bool HttpRequestHead::has_body() const
{
    for (const auto& field : fields) {
        if (names_equal(field.first, "Transfer-Encoding"))
            return true;
        if (names_equal(field.first, "Content-Length")) {
            for (char c : field.second)
                if (c != '0')
                    return true;
        }
    }
    return false;
}

HttpRequestParser::Result HttpRequestParser::parse(const QByteArray& data)
{
    // A client may send a stray blank line between requests.
    qsizetype pos = 0;
    while (pos < data.size() && pos < MAX_HEAD_BYTES && (data[pos] == '\r' || data[pos] == '\n'))
        ++pos;
    const qsizetype start = pos;
    auto next_line = [&](QByteArray* line) {
        const qsizetype end = data.indexOf('\n', pos);
        if (end < 0 || end - start >= MAX_HEAD_BYTES)
            return false;
        *line = data.mid(pos, end - pos);
        if (line->endsWith('\r'))
            line->chop(1);
        pos = end + 1;
        return true;
    };
    auto too_long = [&](bool request_line) {
        if (data.size() - start < MAX_HEAD_BYTES)
            return Result();
        return request_line ? bad(400, "request line too long") : bad(431, "header block too long");
    };

    QByteArray line;
    if (!next_line(&line))
        return too_long(true);
    Result result;
    HttpRequestHead& head = result.head;
    const QList<QByteArray> parts = line.split(' ');
    if (parts.size() != 3)
        return bad(400, "malformed request line");
    if (!is_token(parts[0]))
        return bad(400, "malformed method");
    if (!is_target(parts[1]))
        return bad(400, "malformed request target");
    if (parts[2] == "HTTP/1.1")
        head.minor_version = 1;
    else if (parts[2] == "HTTP/1.0")
        head.minor_version = 0;
    else
        return bad(parts[2].startsWith("HTTP/") ? 505 : 400, "unsupported protocol version");
    head.method = parts[0];
    head.target = parts[1];

    int hosts = 0;
    while (true) {
        if (!next_line(&line))
            return too_long(false);
        if (line.isEmpty())
            break;
        if (line.startsWith(' ') || line.startsWith('\t'))
            return bad(400, "folded header line");
        const qsizetype colon = line.indexOf(':');
        const QByteArray name = line.left(colon);
        const QByteArray value = line.mid(colon + 1).trimmed();
        if (colon <= 0 || !is_token(name) || !is_field_value(value))
            return bad(400, "malformed header line");
        if (head.fields.size() >= MAX_FIELDS)
            return bad(431, "too many header fields");
        if (names_equal(name, "Host"))
            ++hosts;
        if (names_equal(name, "Content-Length")) {
            if (value.isEmpty())
                return bad(400, "malformed Content-Length");
            for (char c : value)
                if (c < '0' || c > '9')
                    return bad(400, "malformed Content-Length");
        }
        head.fields.append({name, value});
    }
    if (hosts > 1)
        return bad(400, "more than one Host");
    result.state = State::Done;
    result.consumed = pos;
    return result;
}
