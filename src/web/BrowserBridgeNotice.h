#pragma once

#include <QString>
#include <cstdio>

// Tells the user of the browser road where to go: the address to open goes
// to standard output once the port is bound, and the token to a file that
// only this user can read, for scripts. The file goes when this object does.
class BrowserBridgeNotice
{
public:
    explicit BrowserBridgeNotice(QString token_file = default_path());
    ~BrowserBridgeNotice();
    BrowserBridgeNotice(const BrowserBridgeNotice&) = delete;
    BrowserBridgeNotice& operator=(const BrowserBridgeNotice&) = delete;

    // Prints http://127.0.0.1:PORT/TOKEN/ on `out` and writes the token file.
    // 0, or -1 with one line on standard error when the file cannot be made.
    int publish(quint16 port, const QString& token, FILE* out = stdout);

    const QString& path() const { return file_path; }

    // $XDG_RUNTIME_DIR (or the temp dir) / ovra-web-bridge-token-<display>.
    static QString default_path();

private:
    QString file_path;
    bool written = false;
};
