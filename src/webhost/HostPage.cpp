#include "HostPage.h"

#include <cstdio>

HostPage::HostPage(QWebEngineProfile* profile, QObject* parent)
    : QWebEnginePage(profile, parent)
    , m_console_to_stderr(qEnvironmentVariableIsSet("OVRA_DEBUG"))
{
}

void HostPage::load_home(const QUrl& url)
{
    m_home = url;
    load(url);
}

bool HostPage::same_origin(const QUrl& url) const
{
    return url.scheme() == m_home.scheme() && url.host() == m_home.host()
        && url.port(-1) == m_home.port(-1);
}

bool HostPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool is_main_frame)
{
    // Frames a page builds for itself start as about:blank or about:srcdoc.
    if (!is_main_frame && url.scheme() == QLatin1String("about"))
        return true;
    if (same_origin(url))
        return true;
    // The origin alone: a path may carry a secret.
    fprintf(stderr, "ovra-web: navigation to %s blocked\n",
            qPrintable(url.adjusted(QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment
                                    | QUrl::RemoveUserInfo)
                           .toString()));
    return false;
}

QWebEnginePage* HostPage::createWindow(WebWindowType)
{
    // window.open() and target=_blank get nothing: every window is ovra's.
    return nullptr;
}

void HostPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& message,
                                        int line, const QString& source)
{
    if (m_console_to_stderr)
        fprintf(stderr, "ovra-web: page %s:%d: %s\n", qPrintable(source), line,
                qPrintable(message));
}
