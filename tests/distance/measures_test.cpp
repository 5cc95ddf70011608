#include "distance/distance.h"
#include "distance/measures.h"
#include "support/expect_failure.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace dorvan {
namespace {

TEST(MeasureLists, DataKindsInTheirOrder) {
    EXPECT_EQ(DataKinds(), (std::vector<std::string>{"numerical data", "numerical data with NA", "binary"}));
}

TEST(MeasureLists, EachMeasureStandsAtItsPlaceWithItsText) {
    const struct {
        std::int16_t Code;
        const char* Text;
        int DataKind;
        int Position;
    } rows[] = {{1, "Henzel distance", 1, 0},  {2, "Czekanowski distance (mean City-Block)", 1, 1},
                {3, "Euclidean", 0, 0},        {4, "Manhattan City-Block", 0, 1},
                {5, "Chebychev", 0, 2},        {6, "Customized", 0, 3},
                {7, "DfDD Distance", 2, 0},    {8, "Lance and Williams", 2, 1},
                {9, "Jaccard (mirror)", 2, 2}, {10, "Yule's Q (mirror)", 2, 3}};
    for (const auto& row : rows) {
        EXPECT_EQ(MeasuresOfKind(row.DataKind).at(std::size_t(row.Position)), row.Text);
        EXPECT_EQ(MeasureCode(row.DataKind, row.Position), row.Code);
        EXPECT_EQ(PlaceOfMeasure(row.Code).DataKind, row.DataKind);
        EXPECT_EQ(PlaceOfMeasure(row.Code).Position, row.Position);
    }
    EXPECT_EQ(MeasuresOfKind(0).size(), 4u);
    EXPECT_EQ(MeasuresOfKind(1).size(), 2u);
    EXPECT_EQ(MeasuresOfKind(2).size(), 4u);
}

TEST(Measures, StandInOneTableWithNameAndWhatTheyKnow) {
    const char* const names[] = {"henzel",     "czekanowski", "euclidean",      "manhattan", "chebychev",
                                 "customized", "dfdd",        "lance-williams", "jaccard",   "yule"};
    ASSERT_EQ(Measures().size(), 10u);
    for (std::int16_t code = 1; code <= 10; ++code) {
        const MeasureRow& row = Measures()[std::size_t(code - 1)];
        EXPECT_EQ(std::int16_t(row.Code), code);
        EXPECT_STREQ(row.Name, names[code - 1]);
        EXPECT_EQ(row.KnowsMissingValues, code <= 2) << code;
        EXPECT_EQ(FindMeasure(code), &row);
        EXPECT_EQ(FindMeasure(row.Name), &row);
        EXPECT_EQ(FindMeasure(std::to_string(code)), &row);
        EXPECT_NE(row.FastDistances, nullptr) << code;
    }
    for (const auto* name : {"", "Henzel", "0", "11", "01", "henzel "}) EXPECT_EQ(FindMeasure(name), nullptr);
    for (const int code : {-1, 0, 11, 32767}) EXPECT_EQ(FindMeasure(std::int16_t(code)), nullptr);
}

TEST(KnowsMissingValues, IsFalseFromTheThirdMeasureOn) {
    for (const int code : {-32768, -1, 0, 1, 2}) EXPECT_TRUE(KnowsMissingValues(std::int16_t(code))) << code;
    for (const int code : {3, 10, 11, 32767}) EXPECT_FALSE(KnowsMissingValues(std::int16_t(code))) << code;
}

TEST(MeasureLists, FailOutside) {
    EXPECT_FAILURE(Failure::InvalidProcedureCall, PlaceOfMeasure(0));
    EXPECT_FAILURE(Failure::InvalidProcedureCall, PlaceOfMeasure(11));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, MeasuresOfKind(3));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, MeasureCode(-1, 0));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, MeasureCode(1, 2));
    EXPECT_FAILURE(Failure::SubscriptOutOfRange, MeasureCode(0, -1));
}

TEST(CurrentMeasure, IsWhatTheSessionHasInForce) {
    test::TestSession test;
    EXPECT_EQ(CurrentMeasure(test.session).Type, DistanceType::Henzel);
    test.session.CurrentDistType = 6;
    test.session.Par_P = 4;
    test.session.Par_R = 5;
    const Measure measure = CurrentMeasure(test.session);
    EXPECT_EQ(measure.Type, DistanceType::Customized);
    EXPECT_EQ(measure.Par_P, 4);
    EXPECT_EQ(measure.Par_R, 5);
}

} // namespace
} // namespace dorvan
