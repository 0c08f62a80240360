#include "app/SingleApplication.h"

#include <QDir>
#include <QLockFile>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>
#include <cstdlib>
#include <iostream>
#include <unistd.h>

#include "hotkeys/SystemKeyboard.h"
#include "services/Updater.h"
#include "services/Utils.h"
#include "settings/SaveManager.h"
#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

SingleApplication::SingleApplication(int& argc, char** argv) : QApplication(argc, argv)
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
            run_guard(name);
    }
    create_managers();
}

SingleApplication::~SingleApplication()
{
    if (server) {
        server->close();
        delete_managers();
        delete server;
        server = nullptr;
    }
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

void SingleApplication::run_guard(const QString& name)
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
        socket->close();
        if (locked)
            lock.unlock();
        std::exit(0);
    }
    server = new QLocalServer();
    server->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(name);
    server->listen(name);
    connect(server, SIGNAL(newConnection()), this, SLOT(slotConnectionEstablished()));
}

void SingleApplication::close_instance_socket()
{
    if (server)
        server->close();
}

void SingleApplication::slotConnectionEstablished()
{
    if (!server)
        return;
    server->nextPendingConnection();
    emit process_arguments();
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
