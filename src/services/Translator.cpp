#include "services/Translator.h"

#include <QCoreApplication>
#include <QTranslator>
#include <iostream>

namespace {
const char TABLE_FOLDER[] = ":/externals/translations";
}

Translator::Translator(QObject* parent) : QObject(parent), translator(new QTranslator())
{
    set_locale(current_locale);
}

Translator::~Translator()
{
    QCoreApplication::removeTranslator(translator);
    delete translator;
}

void Translator::set_locale(const QString& code)
{
    QCoreApplication::removeTranslator(translator);
    current_locale = code;
    // No delimiters: "en_x" must not quietly load ovra_en by shortening.
    if (!translator->load(QStringLiteral("ovra_") + code, QString::fromLatin1(TABLE_FOLDER),
                          QStringLiteral(""), QStringLiteral(".qm"))) {
        std::cout << "Failed to load translation file for " << code.toStdString() << std::endl;
        // A failed load leaves the translator empty, so texts are the source
        // strings: English words natively, the bare keys on the pages.
        current_locale = QStringLiteral("en");
    }
    QCoreApplication::installTranslator(translator);
}

QString Translator::get_current_locale() const
{
    return current_locale;
}

QString Translator::GET_STRING(const QString& key) const
{
    const QByteArray source = key.toLatin1();
    return tr(source.constData());
}

QString Translator::get_language_from_country(const QString& country_name,
                                              const QString& country_code)
{
    if (country_name == QLatin1String("Bulgaria") || country_code == QLatin1String("BG"))
        return QStringLiteral("bg");
    return QStringLiteral("en");
}
