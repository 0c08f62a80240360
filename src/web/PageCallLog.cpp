#include "web/PageCallLog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaMethod>
#include <QMetaObject>

Q_LOGGING_CATEGORY(page_calls, "ovra.page.calls", QtInfoMsg)

namespace {

// The channel's message type of a method call (QWebChannel's protocol).
const int INVOKE_METHOD = 6;

QString method_name(const QJsonValue& method, const QMetaObject* meta)
{
    if (method.isString())
        return method.toString();
    const int index = method.toInt(-1);
    if (meta && index >= 0 && index < meta->methodCount())
        return QString::fromLatin1(meta->method(index).name());
    return QStringLiteral("method#%1").arg(index);
}

} // namespace

void PageCallLog::note(const QJsonObject& message, const QMetaObject* meta)
{
    if (!page_calls().isDebugEnabled() || message.value("type").toInt() != INVOKE_METHOD)
        return;
    QString args = QString::fromUtf8(
        QJsonDocument(message.value("args").toArray()).toJson(QJsonDocument::Compact));
    args = args.mid(1, args.size() - 2);
    qCDebug(page_calls).noquote() << method_name(message.value("method"), meta) + "(" + args + ")";
}
