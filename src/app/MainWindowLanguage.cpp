// The language: the page's strings, the Language setting and the one-time
// choice by place.
#include <QDebug>
#include <iostream>

#include "app/MainWindow.h"
#include "services/Translator.h"
#include "settings/ChangeRule.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"
#include "tray/ITrayIcon.h"

QString MainWindow::GET_STRING(QString translation_string)
{
    return translator ? translator->GET_STRING(translation_string) : translation_string;
}

QString MainWindow::get_language_code()
{
    return translator ? translator->get_current_locale() : QStringLiteral("en");
}

Translator* MainWindow::get_translator()
{
    return translator;
}

void MainWindow::language_changed(QString country_code)
{
    language_changed_force(country_code, false);
}

// Every start passes here with force on, so that the stored language is the
// one installed and the page, the tray and the times report all speak it.
void MainWindow::language_changed_force(QString country_code, bool force)
{
    const auto apply = [&] {
        qDebug() << "LANGUAGE: " << country_code;
        if (translator)
            translator->set_locale(country_code);
        translate_status_words();
        if (tray_icon)
            tray_icon->refresh_tray_icon_actions();
        update_times_info();
    };
    const auto emit_value = [&](const QVariant& stored) {
        emit set_language_dropdown_value(stored.toString());
        emit translate();
    };
    const QString key = QString::fromLatin1(SaveKeys::LANGUAGE);
    if (force)
        change_setting_force(settings, key, country_code, apply, emit_value);
    else
        change_setting(settings, key, country_code, apply, emit_value);
}

void MainWindow::localize_ovra(QString country_name, QString country_code)
{
    // A lookup on any later start, or a second one on this start, leaves the
    // user's own choice alone.
    if (!first_start)
        return;
    first_start = false;
    std::cout << "country_name: " << country_name.toStdString()
              << ", country_code:" << country_code.toStdString() << std::endl;
    language_changed_force(Translator::get_language_from_country(country_name, country_code), true);
    if (SaveManager::s_instance)
        SaveManager::s_instance->save_language();
}
