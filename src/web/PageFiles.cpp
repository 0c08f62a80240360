#include "web/PageFiles.h"

#include <QFile>
#include <QFileInfo>

namespace {

struct TypeByExtension
{
    const char* extension;
    const char* type;
};

const TypeByExtension CONTENT_TYPES[] = {
    {"html", "text/html; charset=utf-8"},
    {"htm", "text/html; charset=utf-8"},
    {"js", "text/javascript; charset=utf-8"},
    {"css", "text/css; charset=utf-8"},
    {"json", "application/json"},
    {"map", "application/json"},
    {"txt", "text/plain; charset=utf-8"},
    {"png", "image/png"},
    {"jpg", "image/jpeg"},
    {"jpeg", "image/jpeg"},
    {"gif", "image/gif"},
    {"svg", "image/svg+xml"},
    {"ico", "image/x-icon"},
    {"woff", "font/woff"},
    {"woff2", "font/woff2"},
    {"ttf", "font/ttf"},
    {"otf", "font/otf"},
    {"eot", "application/vnd.ms-fontobject"},
    {"wav", "audio/wav"},
    {"mp3", "audio/mpeg"},
    {"ogg", "audio/ogg"},
};

bool read_plain_file(const QString& path, QByteArray* content)
{
    if (!QFileInfo(path).isFile())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    *content = file.readAll();
    return true;
}

} // namespace

PageFiles::PageFiles(QString root)
    : root(std::move(root))
{
}

bool PageFiles::read(const QString& relative, QByteArray* content) const
{
    if (relative.isEmpty())
        return false;
    return read_plain_file(root + QLatin1Char('/') + relative, content);
}

bool PageFiles::read_channel_script(QByteArray* content)
{
    return read_plain_file(QStringLiteral(":/qtwebchannel/qwebchannel.js"), content);
}

QByteArray PageFiles::content_type(const QString& file_name)
{
    const QString extension = QFileInfo(file_name).suffix().toLower();
    for (const TypeByExtension& entry : CONTENT_TYPES)
        if (extension == QLatin1String(entry.extension))
            return entry.type;
    return "application/octet-stream";
}
