#include "tray/PauserLists.h"

#include <QStringList>

#include "settings/SaveKeys.h"

namespace PauserLists {

const char* list_key(PauserKind kind)
{
    switch (kind) {
    case PauserKind::Color:
        return SaveKeys::COLOR_PAUSERS;
    case PauserKind::Timer:
        return SaveKeys::TIMER_PAUSERS;
    case PauserKind::Mouse:
        break;
    }
    return SaveKeys::MOUSE_PAUSERS;
}

const char* switch_key(PauserKind kind)
{
    switch (kind) {
    case PauserKind::Color:
        return SaveKeys::USE_COLOR_PAUSERS;
    case PauserKind::Timer:
        return SaveKeys::USE_TIMER_PAUSERS;
    case PauserKind::Mouse:
        break;
    }
    return SaveKeys::USE_MOUSE_PAUSERS;
}

bool shows_checked(const QString& list_text, const QString& name)
{
    return list_text.contains(name, Qt::CaseSensitive);
}

QString toggled(const QString& list_text, const QString& name, bool checked)
{
    // Lines are kept as the user typed them, empty ones too; only a list
    // with no text at all has no lines.
    QStringList names = list_text.isEmpty() ? QStringList() : list_text.split('\n');
    if (checked) {
        if (!names.contains(name))
            names.append(name);
    } else {
        names.removeAll(name);
    }
    return names.join('\n');
}

} // namespace PauserLists
