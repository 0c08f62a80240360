#include "web/BridgeSocket.h"

#include "web/HttpRequestHead.h"

#include <QCryptographicHash>
#include <QStringDecoder>
#include <QTcpSocket>
#include <QtEndian>

namespace {

enum Opcode { CONTINUATION = 0x0, TEXT = 0x1, BINARY = 0x2, CLOSE = 0x8, PING = 0x9, PONG = 0xA };

const char* const ACCEPT_SUFFIX = "258EAFA5-E914-47DA-95CA-C5AB0DC85B11";

bool lists_token(const QByteArray& value, const char* token)
{
    for (const QByteArray& item : value.split(','))
        if (item.trimmed().compare(token, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

} // namespace

QByteArray BridgeSocket::handshake_reply(const HttpRequestHead& head)
{
    const QByteArray key = head.value("Sec-WebSocket-Key");
    const auto decoded = QByteArray::fromBase64Encoding(key, QByteArray::AbortOnBase64DecodingErrors);
    if (head.method != "GET" || head.minor_version != 1 || !lists_token(head.value("Connection"), "upgrade")
        || head.value("Sec-WebSocket-Version") != "13" || !decoded || decoded.decoded.size() != 16)
        return {};
    const QByteArray accept = QCryptographicHash::hash(key + ACCEPT_SUFFIX, QCryptographicHash::Sha1).toBase64();
    return "HTTP/1.1 101 Switching Protocols\r\n"
           "Upgrade: websocket\r\n"
           "Connection: Upgrade\r\n"
           "Sec-WebSocket-Accept: " + accept + "\r\n\r\n";
}

BridgeSocket::BridgeSocket(QTcpSocket* connection, const BridgeRequest& request, QObject* parent)
    : QObject(parent)
    , connection(connection)
    , upgrade_request(request)
{
    connection->setParent(this);
    connect(connection, &QTcpSocket::readyRead, this, &BridgeSocket::read_frames);
    connect(connection, &QTcpSocket::disconnected, this, &BridgeSocket::connection_gone);
    // Frames may have come with the upgrade; they are read once whoever
    // takes this socket has connected to its signals.
    QMetaObject::invokeMethod(this, &BridgeSocket::read_frames, Qt::QueuedConnection);
}

bool BridgeSocket::is_open() const
{
    return !gone && !close_sent && connection->state() == QAbstractSocket::ConnectedState;
}

void BridgeSocket::send_text(const QString& text)
{
    if (is_open())
        send_frame(TEXT, text.toUtf8());
}

void BridgeSocket::close(int code, const QString& reason)
{
    if (gone || close_sent || connection->state() != QAbstractSocket::ConnectedState)
        return;
    QByteArray payload(2, 0);
    qToBigEndian<quint16>(quint16(code), payload.data());
    // A control frame carries at most 125 bytes.
    payload += reason.toUtf8().left(123);
    send_frame(CLOSE, payload);
    close_sent = true;
}

void BridgeSocket::abort()
{
    connection->abort();
    connection_gone();
}

void BridgeSocket::read_frames()
{
    if (gone)
        return;
    buffer += connection->readAll();
    while (!gone && take_frame()) {
    }
}

bool BridgeSocket::take_frame()
{
    if (buffer.size() < 2)
        return false;
    const quint8 first = quint8(buffer[0]), second = quint8(buffer[1]);
    const bool fin = first & 0x80;
    const int opcode = first & 0x0f;
    qsizetype at = 2;
    quint64 length = second & 0x7f;
    if (length == 126) {
        if (buffer.size() < 4)
            return false;
        length = qFromBigEndian<quint16>(buffer.constData() + 2);
        at = 4;
    } else if (length == 127) {
        if (buffer.size() < 10)
            return false;
        length = qFromBigEndian<quint64>(buffer.constData() + 2);
        at = 10;
    }
    // A page always masks; no extension was agreed, so no reserved bit is set.
    if ((first & 0x70) || !(second & 0x80)) {
        fail(PROTOCOL_ERROR);
        return false;
    }
    if (opcode >= CLOSE && (!fin || length > 125)) {
        fail(PROTOCOL_ERROR);
        return false;
    }
    if (length > quint64(MAX_MESSAGE_BYTES) || quint64(message.size()) + length > quint64(MAX_MESSAGE_BYTES)) {
        fail(TOO_BIG);
        return false;
    }
    if (quint64(buffer.size()) < at + 4 + length)
        return false;
    const char* mask = buffer.constData() + at;
    QByteArray payload = buffer.mid(at + 4, qsizetype(length));
    for (qsizetype i = 0; i < payload.size(); ++i)
        payload[i] = char(payload[i] ^ mask[i % 4]);
    buffer.remove(0, at + 4 + qsizetype(length));

    switch (opcode) {
    case TEXT:
    case CONTINUATION:
        if ((opcode == TEXT) == in_message) {
            fail(PROTOCOL_ERROR);
            return false;
        }
        in_message = !fin;
        message += payload;
        if (fin)
            message_done();
        return true;
    case BINARY:
        fail(UNSUPPORTED_DATA);
        return false;
    case PING:
        if (!close_sent)
            send_frame(PONG, payload);
        return true;
    case PONG:
        return true;
    case CLOSE:
        peer_close_code = payload.size() >= 2 ? qFromBigEndian<quint16>(payload.constData()) : int(NO_STATUS);
        if (!close_sent)
            close(peer_close_code == NO_STATUS ? int(NORMAL) : peer_close_code, QString());
        connection->disconnectFromHost();
        return false;
    default:
        fail(PROTOCOL_ERROR);
        return false;
    }
}

void BridgeSocket::message_done()
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(message);
    message.clear();
    if (decoder.hasError()) {
        fail(INVALID_TEXT);
        return;
    }
    emit text_received(text);
}

void BridgeSocket::fail(int code)
{
    buffer.clear();
    close(code, QString());
    connection->disconnectFromHost();
}

void BridgeSocket::send_frame(int opcode, const QByteArray& payload)
{
    QByteArray frame(1, char(0x80 | opcode));
    const qsizetype size = payload.size();
    if (size < 126) {
        frame += char(size);
    } else if (size < 0x10000) {
        frame += char(126);
        frame += char(size >> 8);
        frame += char(size & 0xff);
    } else {
        frame += char(127);
        for (int shift = 56; shift >= 0; shift -= 8)
            frame += char((quint64(size) >> shift) & 0xff);
    }
    connection->write(frame + payload);
}

void BridgeSocket::connection_gone()
{
    if (gone)
        return;
    gone = true;
    emit disconnected();
}
