#include "app/CommandLine.h"

#include <QSettings>
#include <QString>
#include <cstdio>
#include <cstring>

#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"

#ifndef OVRA_VERSION
#define OVRA_VERSION "0"
#endif

namespace {
void print_usage()
{
    const QString store =
        QSettings(SaveKeys::ORGANIZATION, SaveManager::store_application_name()).fileName();
    std::printf(
        "Usage: ovra [--show_ui] [--web-bridge] [WORDS...]\n"
        "       ovra --help | --version\n"
        "\n"
        "Ovra warms and dims every screen towards night, reminds you of breaks and\n"
        "lives in the notification area. Only one Ovra runs per user: a second\n"
        "launch hands its words to the running one and ends.\n"
        "\n"
        "Words for the running Ovra (a spell), for example:\n"
        "  ovra st 3000        night temperature 3000 K\n"
        "  ovra sb 80          night brightness 80 %%\n"
        "  ovra invert         invert the colours (again: back)\n"
        "  ovra help           the list of every spell\n"
        "  ovra                with no words: open the settings window\n"
        "\n"
        "Options:\n"
        "  --show_ui           open the settings window once it is ready\n"
        "  --web-bridge        also offer the settings page to any browser on this\n"
        "                      machine; the address is printed once the port is open\n"
        "  --help              print this text and exit\n"
        "  --version           print the version and exit\n"
        "\n"
        "Settings: %s\n"
        "Running instance: its socket, the kept ramps and the browser token live in\n"
        "  $XDG_RUNTIME_DIR (the temp directory when it is not set).\n"
        "Logs: none are written; messages go to standard error. OVRA_DEBUG=1 keeps\n"
        "  Qt's own messages.\n"
        "Signals: TERM, INT and HUP end Ovra (settings saved, screens given back\n"
        "  their ramps); USR1 pauses or resumes the tint.\n",
        qPrintable(store));
}
} // namespace

int CommandLine::answer_and_exit_code(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
            print_usage();
            return 0;
        }
        if (std::strcmp(argv[i], "--version") == 0) {
            std::printf("Ovra %s\n", OVRA_VERSION);
            return 0;
        }
    }
    return -1;
}
