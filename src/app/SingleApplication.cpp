#include "app/SingleApplication.h"

#include <QDir>
#include <QLockFile>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>
#include <cstdlib>
#include <iostream>
#include <unistd.h>

#include "app/DoorThread.h"
#include "hotkeys/SystemKeyboard.h"
#include "services/LaunchFeedback.h"
#include "services/Updater.h"
#include "services/Utils.h"
#include "settings/SaveManager.h"
#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

SingleApplication::SingleApplication(int& argc, char** argv, const QByteArray& startup_id)
    : QApplication(argc, argv)
{
    const QString name = instance_name();
    {
        QSettings store(QCoreApplication::organizationName(), SaveManager::store_application_name());
        const QStringList arguments = rewrite_arguments(QCoreApplication::arguments());
        store.setValue("ApiArguments", arguments.join(' '));
        // The running instance reads the words from the file as soon as we
        // knock, so they must be on disk before the knock.
        store.sync();
        if (!store.value("AllowMultipleInstances", false).toBool())
            run_guard(name, startup_id);
    }
    create_managers();
}

SingleApplication::~SingleApplication()
{
    if (server) {
        DoorThread::close(server);
        server = nullptr;
        delete_managers();
    }
    DoorThread::stop();
    delete socket;
}

QStringList SingleApplication::rewrite_arguments(QStringList arguments)
{
    if (!arguments.isEmpty())
        arguments.removeFirst();
    arguments.removeAll(QString());
    QString first = arguments.isEmpty() ? QString() : arguments.first();
    if (!first.isEmpty()) {
        first.replace("ovra:", "");
        first.replace("%20", " ");
        first.replace("-", " ");
        std::cout << first.toStdString() << ": first_argument" << std::endl;
        arguments[0] = first;
    }
    return arguments;
}

QString SingleApplication::runtime_directory()
{
    QString dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (dir.isEmpty() || !QDir(dir).exists())
        dir = QDir::tempPath();
    return dir;
}

QString SingleApplication::instance_name()
{
    const QString base = QCoreApplication::organizationName() + QCoreApplication::applicationName();
    const QString dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!dir.isEmpty() && QDir(dir).exists())
        return QDir(dir).filePath(base);
    // The shared temp dir: the user's number keeps two users apart.
    return QDir(QDir::tempPath()).filePath(base + "-" + QString::number(getuid()));
}

void SingleApplication::run_guard(const QString& name, const QByteArray& startup_id)
{
    // The probe and the listen form one step under a per-user lock, so two
    // launches at the same moment cannot both find nobody and both listen.
    QLockFile lock(QDir(runtime_directory()).filePath(
        QCoreApplication::organizationName() + QCoreApplication::applicationName() + "-"
        + QString::number(getuid()) + ".lock"));
    lock.setStaleLockTime(10000);
    const bool locked = lock.tryLock(15000);

    socket = new QLocalSocket();
    socket->connectToServer(name, QIODevice::ReadWrite);
    if (socket->waitForConnected(1000)) {
        // One line, then the end of the connection: a running instance that
        // reads nothing still takes the knock.
        socket->write(startup_id + '\n');
        socket->waitForBytesWritten(1000);
        socket->disconnectFromServer();
        if (socket->state() != QLocalSocket::UnconnectedState)
            socket->waitForDisconnected(1000);
        if (locked)
            lock.unlock();
        std::exit(0);
    }
    server = new QLocalServer();
    server->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(name);
    server->listen(name);
    server_path = server->fullServerName();
    // The knocks are taken and read in the door thread; only the words of a
    // whole knock come over to this one.
    connect(server, &QLocalServer::newConnection, server, [this] { take_knocks(); });
    DoorThread::take(server);
}

void SingleApplication::close_instance_socket()
{
    // For a process that ends without unwinding: the listening socket dies
    // with it, its file would not.
    if (!server_path.isEmpty())
        QLocalServer::removeServer(server_path);
}

void SingleApplication::take_knocks()
{
    while (QLocalSocket* knock = server->nextPendingConnection()) {
        connect(knock, &QLocalSocket::readyRead, knock, [this, knock] { read_knock(knock); });
        connect(knock, &QLocalSocket::disconnected, knock, [this, knock] { read_knock(knock); });
        // The launch may have written and gone before we got here.
        read_knock(knock);
    }
}

// The words are acted on once the launch's line is whole, or once the
// launch has gone without one; each knock counts once.
void SingleApplication::read_knock(QLocalSocket* knock)
{
    const bool gone = knock->state() == QLocalSocket::UnconnectedState;
    const bool whole = knock->canReadLine();
    if (!gone && !whole) {
        // Nothing a launch writes is this long: the knock counts as it is.
        if (knock->bytesAvailable() <= LaunchFeedback::MAX_ID_LENGTH)
            return;
    }
    const QByteArray startup_id = LaunchFeedback::checked(knock->readLine(LaunchFeedback::MAX_ID_LENGTH + 2).trimmed());
    knock->disconnect();
    knock->deleteLater();
    QMetaObject::invokeMethod(this, [this, startup_id] { emit process_arguments(startup_id); }, Qt::QueuedConnection);
}

void SingleApplication::create_managers()
{
    save_manager = new SaveManager();
    system_keyboard = new SystemKeyboard();
    solar_position = new SolarPosition();
    clock_position = new ClockPosition();
    updater = new Updater();
    utils = new Utils();
}

void SingleApplication::delete_managers()
{
    delete save_manager;
    save_manager = nullptr;
    delete solar_position;
    solar_position = nullptr;
    delete clock_position;
    clock_position = nullptr;
    delete updater;
    updater = nullptr;
    delete utils;
    utils = nullptr;
    // The keyboard manager stays alive until the process ends on purpose.
}

void show_already_running_warning()
{
    QMessageBox::information(nullptr, "Ovra",
                             "Ovra is already running.\nLook at the icon in the corner of the screen.",
                             QMessageBox::Ok);
}

void noMessageOutput(QtMsgType, const QMessageLogContext&, const QString&) {}
