#include "web/WebHost.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>
#include <cerrno>
#include <cstdio>
#include <malloc.h>
#include <unistd.h>

namespace {

const int k_start_timeout_ms = 5000;
// Below ovra's priority: see start().
const int HOST_NICENESS = 10;
// How long an ended host may take to leave before it is killed.
const int k_exit_grace_ms = 1000;

QJsonArray rect_array(const QRect& r)
{
    return {r.x(), r.y(), r.width(), r.height()};
}

QJsonArray size_array(const QSize& s)
{
    return {s.width(), s.height()};
}

} // namespace

WebHost::WebHost(QObject* parent)
    : QObject(parent)
{
}

WebHost::~WebHost()
{
    // Hosts still running, the current one or ones being ended, go now;
    // they would die with this process anyway.
    for (QProcess* process : findChildren<QProcess*>(Qt::FindDirectChildrenOnly)) {
        disconnect(process, nullptr, this, nullptr);
        process->kill();
        process->waitForFinished(k_exit_grace_ms);
    }
}

QString WebHost::host_path()
{
    const QString configured = qEnvironmentVariable("OVRA_WEB_HOST");
    if (!configured.isEmpty())
        return configured;
    return QCoreApplication::applicationDirPath() + QStringLiteral("/ovra-web");
}

qint64 WebHost::pid() const
{
    return m_process ? m_process->processId() : 0;
}

namespace {
QStringList& kept_from_host()
{
    static QStringList names;
    return names;
}
} // namespace

void WebHost::keep_from_host(const QString& name)
{
    if (!kept_from_host().contains(name))
        kept_from_host().append(name);
}

bool WebHost::start()
{
    const QString path = host_path();
    const QFileInfo info(path);
    if (!info.isFile() || !info.isExecutable()) {
        fprintf(stderr, "ovra: window host %s is missing or not executable\n", qPrintable(path));
        return false;
    }
    auto* process = new QProcess(this);
    process->setProgram(path);
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& name : std::as_const(kept_from_host()))
        env.remove(name);
    env.insert(QStringLiteral("OVRA_WEB_PARENT"), QString::number(qint64(getpid())));
    process->setProcessEnvironment(env);
    // On a busy machine the engine's start fills every core for a second;
    // a colour fade in ovra must not wait for it. Pages still get the CPU
    // that nothing else wants.
    process->setChildProcessModifier([] {
        // Refused, the host runs at ovra's own priority: slower fades, no harm.
        errno = 0;
        if (nice(HOST_NICENESS) == -1 && errno != 0)
            return;
    });
    process->start(QIODevice::ReadWrite);
    if (!process->waitForStarted(k_start_timeout_ms)) {
        fprintf(stderr, "ovra: window host %s did not start: %s\n", qPrintable(path),
                qPrintable(process->errorString()));
        delete process;
        return false;
    }
    m_process = process;
    m_buffer.clear();
    connect(process, &QProcess::readyReadStandardOutput, this, &WebHost::read_events);
    connect(process, &QProcess::finished, this, &WebHost::on_finished);
    return true;
}

void WebHost::end_host()
{
    QProcess* process = m_process;
    m_process = nullptr;
    m_buffer.clear();
    m_closing.clear();
    if (!process)
        return;
    // What the host still says is about windows that no longer count.
    disconnect(process, nullptr, this, nullptr);
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    // A page's traffic leaves the heap full of freed pieces; the resident
    // program gives them back to the system once its windows have all gone.
    connect(process, &QProcess::finished, process, [] { malloc_trim(0); });
    process->closeWriteChannel();
    QTimer::singleShot(k_exit_grace_ms, process, [process] { process->kill(); });
}

void WebHost::on_finished()
{
    auto* process = qobject_cast<QProcess*>(sender());
    if (!process || process != m_process)
        return;
    // Events written just before the end still count.
    read_events();
    if (process->exitStatus() == QProcess::CrashExit)
        fprintf(stderr, "ovra: window host crashed\n");
    else
        fprintf(stderr, "ovra: window host ended unexpectedly with code %d\n", process->exitCode());
    m_process = nullptr;
    m_buffer.clear();
    m_closing.clear();
    process->deleteLater();
    const QSet<QString> lost = m_windows;
    m_windows.clear();
    for (const QString& id : lost)
        emit window_gone(id);
    emit host_died();
}

void WebHost::send(const QJsonObject& command)
{
    if (!m_process)
        return;
    QByteArray line = QJsonDocument(command).toJson(QJsonDocument::Compact);
    line.append('\n');
    m_process->write(line);
}

bool WebHost::send_to(const QString& id, QJsonObject command)
{
    if (!m_windows.contains(id))
        return false;
    command.insert(QStringLiteral("id"), id);
    send(command);
    return true;
}

bool WebHost::open(const QString& id, const QUrl& url, const WindowOptions& options, ShowState state,
                   quint32 user_time)
{
    if (m_windows.contains(id)) {
        fprintf(stderr, "ovra: page window %s is already open\n", qPrintable(id));
        return false;
    }
    if (!m_process && !start())
        return false;
    QJsonObject command{{"cmd", "open"},
                        {"id", id},
                        {"url", url.toString(QUrl::FullyEncoded)},
                        {"title", options.title},
                        {"flags", options.to_json()},
                        {"state", host_states::name_of(state)}};
    if (!options.rect.isNull())
        command.insert(QStringLiteral("rect"), rect_array(options.rect));
    if (options.size.isValid())
        command.insert(QStringLiteral("size"), size_array(options.size));
    if (user_time)
        command.insert(QStringLiteral("time"), double(user_time));
    send(command);
    m_windows.insert(id);
    return true;
}

bool WebHost::show(const QString& id, ShowState state, quint32 user_time)
{
    QJsonObject command{{"cmd", "show"}, {"state", host_states::name_of(state)}};
    if (user_time)
        command.insert(QStringLiteral("time"), double(user_time));
    return send_to(id, command);
}

bool WebHost::raise(const QString& id, quint32 user_time)
{
    QJsonObject command{{"cmd", "raise"}};
    if (user_time)
        command.insert(QStringLiteral("time"), double(user_time));
    return send_to(id, command);
}

bool WebHost::hide(const QString& id)
{
    return send_to(id, {{"cmd", "hide"}});
}

bool WebHost::close(const QString& id)
{
    if (!send_to(id, {{"cmd", "close"}}))
        return false;
    m_windows.remove(id);
    if (m_windows.isEmpty())
        end_host();
    else
        ++m_closing[id];
    return true;
}

bool WebHost::resize(const QString& id, const QSize& size)
{
    return send_to(id, {{"cmd", "resize"}, {"size", size_array(size)}});
}

bool WebHost::set_geometry(const QString& id, const QRect& rect)
{
    return send_to(id, {{"cmd", "geometry"}, {"rect", rect_array(rect)}});
}

bool WebHost::set_policy(const QString& id, const WindowOptions& options)
{
    return send_to(id, {{"cmd", "policy"}, {"flags", options.to_json()}});
}

bool WebHost::evaluate(const QString& id, const QString& script)
{
    return send_to(id, {{"cmd", "eval"}, {"script", script}});
}

void WebHost::read_events()
{
    if (!m_process)
        return;
    m_buffer.append(m_process->readAllStandardOutput());
    qsizetype start = 0;
    for (;;) {
        const qsizetype end = m_buffer.indexOf('\n', start);
        if (end < 0)
            break;
        const QJsonDocument doc = QJsonDocument::fromJson(m_buffer.mid(start, end - start));
        start = end + 1;
        if (doc.isObject())
            dispatch(doc.object());
        else
            fprintf(stderr, "ovra: window host sent a line that is not JSON\n");
        // A handler may have closed the last window and ended the host.
        if (!m_process)
            return;
    }
    m_buffer.remove(0, start);
}

void WebHost::dispatch(const QJsonObject& event)
{
    const QString name = event.value(QLatin1String("event")).toString();
    const QString id = event.value(QLatin1String("id")).toString();
    if (name == QLatin1String("gone")) {
        auto it = m_closing.find(id);
        if (it != m_closing.end()) {
            if (--it.value() == 0)
                m_closing.erase(it);
            return;
        }
        if (m_windows.remove(id))
            emit window_gone(id);
        return;
    }
    // Reports about a window already closed here are stale.
    if (!m_windows.contains(id) || m_closing.contains(id))
        return;
    if (name == QLatin1String("loaded")) {
        emit loaded(id, event.value(QLatin1String("ok")).toBool());
    } else if (name == QLatin1String("mapped")) {
        emit mapped(id, quint32(event.value(QLatin1String("xid")).toDouble()));
    } else if (name == QLatin1String("close_requested")) {
        emit close_requested(id);
    } else if (name == QLatin1String("escape")) {
        emit escape_pressed(id);
    } else if (name == QLatin1String("state")) {
        ShowState state;
        if (host_states::from_name(event.value(QLatin1String("state")).toString(), &state))
            emit state_changed(id, state);
    }
}
