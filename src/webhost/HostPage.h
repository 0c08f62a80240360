#pragma once

#include <QUrl>
#include <QWebEnginePage>

// A page that stays on its own site: navigation is allowed only to the
// origin of the first URL it was given, and no new window is ever created.
class HostPage : public QWebEnginePage
{
    Q_OBJECT

public:
    HostPage(QWebEngineProfile* profile, QObject* parent);

    // Loads `url` and takes its origin as the only one allowed from now on.
    void load_home(const QUrl& url);

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type,
                                 bool is_main_frame) override;
    QWebEnginePage* createWindow(WebWindowType type) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                  int line, const QString& source) override;

private:
    bool same_origin(const QUrl& url) const;

    QUrl m_home;
    bool m_console_to_stderr;
};
