#include <gtest/gtest.h>

#include "services/LocationParser.h"

namespace {

// A stored position that each test starts from.
const double STORED_LATITUDE = 48.8566;
const double STORED_LONGITUDE = 2.3522;

struct Reading
{
    bool is_object;
    double latitude;
    double longitude;
};

Reading read(const QByteArray& body)
{
    Reading reading{false, STORED_LATITUDE, STORED_LONGITUDE};
    reading.is_object = LocationParser::read_location(body, &reading.latitude, &reading.longitude);
    return reading;
}

TEST(LocationParser, FullReplyGivesBothCoordinates)
{
    const Reading r = read(R"({"ip":"192.0.2.7","country_code":"BG","country_name":"Bulgaria",)"
                           R"("city":"Sofia","time_zone":"Europe/Sofia","latitude":42.6977,)"
                           R"("longitude":23.3219,"metro_code":0})");
    EXPECT_TRUE(r.is_object);
    EXPECT_DOUBLE_EQ(r.latitude, 42.6977);
    EXPECT_DOUBLE_EQ(r.longitude, 23.3219);
}

TEST(LocationParser, LatitudeOnlyKeepsTheLongitude)
{
    const Reading r = read(R"({"latitude": -33.8688})");
    EXPECT_TRUE(r.is_object);
    EXPECT_DOUBLE_EQ(r.latitude, -33.8688);
    EXPECT_DOUBLE_EQ(r.longitude, STORED_LONGITUDE);
}

TEST(LocationParser, LongitudeOnlyKeepsTheLatitude)
{
    const Reading r = read(R"({"longitude": 151.2093})");
    EXPECT_DOUBLE_EQ(r.latitude, STORED_LATITUDE);
    EXPECT_DOUBLE_EQ(r.longitude, 151.2093);
}

TEST(LocationParser, MinusNineThousandNineHundredNinetyNineIsIgnored)
{
    const Reading r = read(R"({"latitude": -9999.0, "longitude": 10.5})");
    EXPECT_TRUE(r.is_object);
    EXPECT_DOUBLE_EQ(r.latitude, STORED_LATITUDE);
    EXPECT_DOUBLE_EQ(r.longitude, 10.5);
    const Reading both = read(R"({"latitude": -9999, "longitude": -9999})");
    EXPECT_DOUBLE_EQ(both.latitude, STORED_LATITUDE);
    EXPECT_DOUBLE_EQ(both.longitude, STORED_LONGITUDE);
}

TEST(LocationParser, NearbyValuesAreTaken)
{
    const Reading r = read(R"({"latitude": -9998.5, "longitude": 0})");
    EXPECT_DOUBLE_EQ(r.latitude, -9998.5);
    EXPECT_DOUBLE_EQ(r.longitude, 0.0);
}

TEST(LocationParser, KeyWithoutANumberIsIgnored)
{
    const Reading r = read(R"({"latitude": "42.7", "longitude": null})");
    EXPECT_TRUE(r.is_object);
    EXPECT_DOUBLE_EQ(r.latitude, STORED_LATITUDE);
    EXPECT_DOUBLE_EQ(r.longitude, STORED_LONGITUDE);
}

TEST(LocationParser, ObjectWithNeitherKeyChangesNothing)
{
    const Reading r = read(R"({"city": "Sofia", "country_name": "Bulgaria"})");
    EXPECT_TRUE(r.is_object);
    EXPECT_DOUBLE_EQ(r.latitude, STORED_LATITUDE);
    EXPECT_DOUBLE_EQ(r.longitude, STORED_LONGITUDE);
}

TEST(LocationParser, WhatIsNotAJsonObjectChangesNothing)
{
    for (const QByteArray& body : {QByteArray("[42.6977, 23.3219]"), QByteArray("42.6977"),
                                  QByteArray("\"latitude\""), QByteArray(""),
                                  QByteArray("<html><body>502 Bad Gateway</body></html>"),
                                  QByteArray("{\"latitude\": 42.6977, \"longitude\": "),
                                  QByteArray("\xff\xfe\x00garbage", 10)}) {
        const Reading r = read(body);
        EXPECT_FALSE(r.is_object) << body.toStdString();
        EXPECT_DOUBLE_EQ(r.latitude, STORED_LATITUDE) << body.toStdString();
        EXPECT_DOUBLE_EQ(r.longitude, STORED_LONGITUDE) << body.toStdString();
    }
}

TEST(LocationParser, CoordinatesKeepSixSignificantDigits)
{
    EXPECT_EQ(LocationParser::format_coordinate(42.6977), QStringLiteral("42.6977"));
    EXPECT_EQ(LocationParser::format_coordinate(42.69771), QStringLiteral("42.6977"));
    EXPECT_EQ(LocationParser::format_coordinate(-122.41942), QStringLiteral("-122.419"));
    EXPECT_EQ(LocationParser::format_coordinate(23.32), QStringLiteral("23.32"));
    EXPECT_EQ(LocationParser::format_coordinate(0.0), QStringLiteral("0"));
    EXPECT_EQ(LocationParser::format_coordinate(-1.0), QStringLiteral("-1"));
    EXPECT_EQ(LocationParser::format_coordinate(51.4999996), QStringLiteral("51.5"));
}

TEST(LocationParser, LocationIsJoinedWithCommaAndBlank)
{
    EXPECT_EQ(LocationParser::format_location(42.69771, 23.32191), QStringLiteral("42.6977, 23.3219"));
    EXPECT_EQ(LocationParser::format_location(-33.8688, 151.2093), QStringLiteral("-33.8688, 151.209"));
}

}
