#pragma once

// A tray icon that writes down what the controller tells it.
#include <QStringList>

#include "tray/ITrayIcon.h"

struct FakeTray : ITrayIcon
{
    QString tooltip;
    QStringList messages; // "title: text"
    int icon_updates = 0;

    void show_icon() override {}
    bool is_visible() const override { return true; }
    void refresh_selected_type() override {}
    void refresh_selected_mode() override {}
    void refresh_tray_icon_actions() override {}
    void refresh_tray_icon_menu() override {}
    void refresh_pausers_actions() override {}
    void update_tray_icon(bool) override { ++icon_updates; }
    void set_tooltip(const QString& text) override { tooltip = text; }
    void show_message(const QString& title, const QString& t) override { messages << title + ": " + t; }
};
