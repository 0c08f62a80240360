#include <gtest/gtest.h>

#include "services/LocationParser.h"

namespace {

TEST(LocationParser, TakesWhatTheReplyHoldsAndKeepsTheRest)
{
    // Each reading starts from a stored position. -9999 means "unknown" to
    // the service; a key without a number is no answer either.
    const double stored_latitude = 48.8566, stored_longitude = 2.3522;
    const struct
    {
        QByteArray body;
        bool is_object;
        double latitude, longitude;
    } cases[] = {
        {R"({"ip":"192.0.2.7","country_code":"BG","country_name":"Bulgaria","city":"Sofia",)"
         R"("time_zone":"Europe/Sofia","latitude":42.6977,"longitude":23.3219,"metro_code":0})",
         true, 42.6977, 23.3219},
        {R"({"latitude": -33.8688})", true, -33.8688, stored_longitude},
        {R"({"longitude": 151.2093})", true, stored_latitude, 151.2093},
        {R"({"latitude": -9999.0, "longitude": 10.5})", true, stored_latitude, 10.5},
        {R"({"latitude": -9999, "longitude": -9999})", true, stored_latitude, stored_longitude},
        {R"({"latitude": -9998.5, "longitude": 0})", true, -9998.5, 0.0},
        {R"({"latitude": "42.7", "longitude": null})", true, stored_latitude, stored_longitude},
        {R"({"city": "Sofia", "country_name": "Bulgaria"})", true, stored_latitude, stored_longitude},
        // What is not a JSON object changes nothing.
        {"[42.6977, 23.3219]", false, stored_latitude, stored_longitude},
        {"42.6977", false, stored_latitude, stored_longitude},
        {"\"latitude\"", false, stored_latitude, stored_longitude},
        {"", false, stored_latitude, stored_longitude},
        {"<html><body>502 Bad Gateway</body></html>", false, stored_latitude, stored_longitude},
        {"{\"latitude\": 42.6977, \"longitude\": ", false, stored_latitude, stored_longitude},
        {QByteArray("\xff\xfe\x00garbage", 10), false, stored_latitude, stored_longitude},
    };
    for (const auto& c : cases) {
        double latitude = stored_latitude, longitude = stored_longitude;
        EXPECT_EQ(LocationParser::read_location(c.body, &latitude, &longitude), c.is_object) << c.body.toStdString();
        EXPECT_DOUBLE_EQ(latitude, c.latitude) << c.body.toStdString();
        EXPECT_DOUBLE_EQ(longitude, c.longitude) << c.body.toStdString();
    }
}

TEST(LocationParser, CoordinatesKeepSixSignificantDigits)
{
    const std::pair<double, const char*> cases[] = {{42.6977, "42.6977"}, {42.69771, "42.6977"},
                                                    {-122.41942, "-122.419"}, {23.32, "23.32"},
                                                    {0.0, "0"}, {-1.0, "-1"}, {51.4999996, "51.5"}};
    for (const auto& [value, text] : cases)
        EXPECT_EQ(LocationParser::format_coordinate(value), text) << value;
    EXPECT_EQ(LocationParser::format_location(42.69771, 23.32191), "42.6977, 23.3219");
    EXPECT_EQ(LocationParser::format_location(-33.8688, 151.2093), "-33.8688, 151.209");
}

// The page's label: the city and country, or what the time zone says of the
// place, or nothing (the page then shows the coordinates).
TEST(LocationParser, PlaceNameFallsBackThroughTheTimeZone)
{
    const std::pair<const char*, const char*> cases[] = {
        {R"({"city":"Sofia","country_name":"Bulgaria","time_zone":"Europe/Sofia"})", "Sofia, Bulgaria"},
        {R"({"city":"","country_name":"United States","time_zone":"America/New_York"})", "New York, United States"},
        {R"({"country_name":"Iceland","time_zone":"UTC"})", "UTC, Iceland"},
        {R"({"city":"Lagos"})", "Lagos"},
        {R"({"latitude":1,"longitude":2})", ""},
        {"not json", ""},
    };
    for (const auto& [body, label] : cases)
        EXPECT_EQ(LocationParser::place_name(body), QString::fromUtf8(label)) << body;
}

}
