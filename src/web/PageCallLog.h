#pragma once

#include <QLoggingCategory>

class QJsonObject;
struct QMetaObject;

// Every call that a page makes on its native object, one debug line each
// ("work_time_changed(1440)"), before the call runs. Off unless the logging
// rule "ovra.page.calls.debug=true" is given and Qt's own message handler is
// kept (OVRA_DEBUG=1): it shows what reaches the program, also a call that
// changes nothing, which the change rule's own line cannot.
Q_DECLARE_LOGGING_CATEGORY(page_calls)

namespace PageCallLog {

// Writes the line for a message of the channel if it invokes a method;
// `meta` names a method that the page gives by its index.
void note(const QJsonObject& message, const QMetaObject* meta);

} // namespace PageCallLog
