#pragma once

#include <QObject>
#include <QString>

class QTranslator;

// The one source of translated text. Native code translates with tr() in its
// own class's context; pages ask for a symbolic key, which is looked up here
// in the context "Translator". One compiled table per language is a resource
// under :/externals/translations/, named ovra_<code>.qm.
class Translator : public QObject
{
    Q_OBJECT

public:
    explicit Translator(QObject* parent = nullptr);
    ~Translator() override;

    // Installs the table of `code` in place of the current one. An unknown
    // code prints one line, falls back to "en" as the locale, and leaves the
    // program on its source texts.
    void set_locale(const QString& code);
    QString get_current_locale() const;

    // The text of a page key; a key without an entry comes back as it is.
    QString GET_STRING(const QString& key) const;

    // The language chosen by place at first start.
    static QString get_language_from_country(const QString& country_name,
                                             const QString& country_code);

    // Page keys live in the table alone; nothing here needs declaring.
    void declaring_string() {}

public slots:
    bool is_debug_mode() { return false; }

private:
    QTranslator* translator = nullptr;
    QString current_locale = QStringLiteral("en");
};
