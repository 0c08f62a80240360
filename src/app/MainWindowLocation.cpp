#include "app/MainWindow.h"

#include "base/TickPath.h"

#include <QDebug>
#include <QNetworkReply>

#include "services/GeolocationRequest.h"
#include "services/LocationParser.h"
#include "services/OnlineState.h"
#include "services/SystemProxy.h"
#include "settings/ChangeRule.h"
#include "settings/SaveKeys.h"
#include "settings/SaveManager.h"

namespace {
bool use_manual_location(std::map<QString, QVariant>& settings)
{
    return settings[QString::fromLatin1(SaveKeys::USE_MANUAL_LOCATION)].toBool();
}
}

void MainWindow::setup_network_config_manager()
{
    network_config_manager = new OnlineState();
    connect(network_config_manager, &OnlineState::online_state_changed, this,
            &MainWindow::connected_to_internet);
}

bool MainWindow::is_connected_to_internet()
{
    return !network_config_manager || network_config_manager->is_online();
}

void MainWindow::setup_system_proxy()
{
    SystemProxy::apply();
}

void MainWindow::get_geolocation_data()
{
    if (!use_manual_location(settings) && is_connected_to_internet()) {
        GeolocationRequest::send(network_manager);
        emit find_geolocation();
        return;
    }
    show_known_location();
}

// What the page shows when no place came back: the coordinates in use, or
// that there are none.
void MainWindow::show_known_location()
{
    if (latitude == -1.0 || longitude == -1.0)
        emit set_geolocation_string(tr("Location unknown"));
    else
        emit set_geolocation_string(LocationParser::format_location(latitude, longitude));
}

void MainWindow::update_location(QNetworkReply* reply)
{
    reply->deleteLater();
    if (use_manual_location(settings))
        return;
    // A request that failed or timed out says nothing about where we are;
    // the stored pair stays, and with it the choice of curve.
    if (reply->error() != QNetworkReply::NoError) {
        show_known_location();
        return;
    }
    const QByteArray body = reply->readAll();
    if (!LocationParser::read_location(body, &latitude, &longitude)) {
        show_known_location();
        return;
    }
    save_location_data(latitude, longitude);
    const QString place = LocationParser::place_name(body);
    if (place.isEmpty())
        show_known_location();
    else
        emit set_geolocation_string(place);
    QString country_name, country_code;
    LocationParser::country(body, &country_name, &country_code);
    localize_ovra(country_name, country_code);
}

void MainWindow::save_location_data(float latitude_value, float longitude_value)
{
    if (use_manual_location(settings))
        return;
    if (SaveManager::s_instance)
        SaveManager::s_instance->save_location_data(latitude_value, longitude_value);
    update_times_info();
}

double MainWindow::get_latitude()
{
    return latitude;
}

double MainWindow::get_longitude()
{
    return longitude;
}

// The pair lives in members rather than in the map, so the change rule's map
// helper does not apply; the file gets the pair on the next save.
void MainWindow::latitude_changed(float value)
{
    if (latitude == value)
        return;
    qDebug() << "latitude_changed: " << value;
    latitude = value;
    emit set_latitude_value(LocationParser::format_coordinate(latitude));
    update_times_info();
}

void MainWindow::longitude_changed(float value)
{
    if (longitude == value)
        return;
    qDebug() << "longitude_changed: " << value;
    longitude = value;
    emit set_longitude_value(LocationParser::format_coordinate(longitude));
    update_times_info();
}

void MainWindow::use_manual_location_changed(bool value)
{
    const bool changed = change_setting(
        settings, QString::fromLatin1(SaveKeys::USE_MANUAL_LOCATION), value,
        [this] {
            if (is_connected_to_internet())
                get_geolocation_data();
        },
        [this](const QVariant& stored) { emit set_use_manual_location(stored.toBool()); });
    if (changed)
        update_times_info();
}

OVRA_TICK void MainWindow::process_curve_files()
{
    if (brightness_config.is_config_used())
        brightness_config.process_brightness_config(settings, [this] { update_gamma(); });
    if (temperature_config.is_config_used())
        temperature_config.process_temperature_config(settings, [this] { update_gamma(); });
}
