#pragma once

#include <QJsonObject>
#include <QObject>
#include <map>

class EventWriter;
class HostWindow;
class QWebEngineProfile;

// Carries out ovra's commands on the host's windows and reports their
// events. It also gates the keyboard: keys for a window that swallows them,
// or any key while one of the windows holds a grab, never reach a page.
class WindowHost : public QObject
{
    Q_OBJECT

public:
    explicit WindowHost(EventWriter* events, QObject* parent = nullptr);
    ~WindowHost() override;

public slots:
    void handle(const QJsonObject& command);
    // Closes every window and ends the event loop.
    void shut_down();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void open(const QJsonObject& command);
    void close(const QString& id);
    HostWindow* window_for(const QJsonObject& command) const;
    HostWindow* window_of(QObject* receiver) const;
    bool any_grab() const;
    void connect_window(HostWindow* window);
    void send(const char* event, const QString& id, QJsonObject fields = {});

    EventWriter* m_events;
    QWebEngineProfile* m_profile;
    std::map<QString, HostWindow*> m_windows;
};
