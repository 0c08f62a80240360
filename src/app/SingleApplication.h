#pragma once

#include <QApplication>
#include <QLocalServer>
#include <QLocalSocket>

class MainWindow;
class SaveManager;
class SystemKeyboard;
class SolarPosition;
class ClockPosition;
class Updater;
class Utils;

// The application object. It keeps one instance running per user: a second
// launch stores its words in the settings store, knocks on the running
// instance's local socket, says over it which launch it is (its startup
// notification ID, often empty) and ends. It also owns the process-wide
// managers.
class SingleApplication : public QApplication
{
    Q_OBJECT

public:
    // `startup_id` is the launch's startup notification ID, taken from the
    // environment before Qt could claim it; a second launch hands it over.
    SingleApplication(int& argc, char** argv, const QByteArray& startup_id = {});
    ~SingleApplication() override;

    void setMainWindow(MainWindow* window) { main_window = window; }
    MainWindow* getMainWindow() { return main_window; }

    // Removes the instance's socket file, for a way out without destructors.
    void close_instance_socket();

    void create_managers();
    void delete_managers();

    // The launch's words as they are handed over: the program path and empty
    // words dropped, the first word rewritten from its link form.
    static QStringList rewrite_arguments(QStringList arguments);
    // Where the instance's socket and lock live: per user.
    static QString instance_name();
    static QString runtime_directory();

signals:
    void show_up();
    // The words in the store are new; `startup_id` names the launch that
    // brought them, empty when it had none.
    void process_arguments(const QByteArray& startup_id);

private:
    // Both in the door thread, where the server lives.
    void take_knocks();
    void run_guard(const QString& name, const QByteArray& startup_id);
    void read_knock(QLocalSocket* knock);

    SaveManager* save_manager = nullptr;
    SystemKeyboard* system_keyboard = nullptr;
    SolarPosition* solar_position = nullptr;
    ClockPosition* clock_position = nullptr;
    Updater* updater = nullptr;
    Utils* utils = nullptr;
    MainWindow* main_window = nullptr;
    QLocalSocket* socket = nullptr;
    QLocalServer* server = nullptr;
    QString server_path;
};

void show_already_running_warning();
void noMessageOutput(QtMsgType, const QMessageLogContext&, const QString&);
