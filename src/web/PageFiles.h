#pragma once

#include <QByteArray>
#include <QString>

// The files a bridge server hands out: the pages below one folder (the
// program's resources in use, any folder in tests) and Qt's own client script
// for the web channel.
class PageFiles
{
public:
    explicit PageFiles(QString root);

    // Reads `relative` below the root. False for anything that is not a
    // readable plain file there, folders included. The path is trusted to hold
    // no "." or ".." segments; the gate has refused those.
    bool read(const QString& relative, QByteArray* content) const;

    // Qt's qwebchannel.js from the WebChannel library's resources.
    static bool read_channel_script(QByteArray* content);

    // The Content-Type for a file name, by its extension.
    static QByteArray content_type(const QString& file_name);

private:
    QString root;
};
