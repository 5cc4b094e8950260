// Reading scan-code sequences: the codes before a bad one are served, and a bad one is a run-time error of its kind.
#include "input/ScanCodes.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

struct Reading {
    std::vector<Long> Codes;
    int Error = 0;
};

Reading Read(const std::string& sequence) {
    Reading reading;
    try {
        for (ScanCodeReader codes(sequence); !codes.AtEnd();) reading.Codes.push_back(codes.Next());
    } catch (const RuntimeError& error) {
        reading.Error = error.Number;
    }
    return reading;
}

struct Row {
    const char* Sequence;
    std::vector<Long> Codes;
    int Error;
};

// Names the test.
void PrintTo(const Row& row, std::ostream* out) { *out << "the sequence [" << row.Sequence << "]"; }

class ScanCodesTest : public testing::TestWithParam<Row> {};

TEST_P(ScanCodesTest, ReadsAsFarAsTheCodesAreGood) {
    const Reading reading = Read(GetParam().Sequence);
    EXPECT_EQ(reading.Codes, GetParam().Codes);
    EXPECT_EQ(reading.Error, GetParam().Error);
}

const std::vector<Row> Rows{
    {"29", {29}, 0},
    {"0", {0}, 0},
    {"29+46", {29, 46}, 0},
    {"285+511", {285, 511}, 0},
    {" 29 + 46 ", {29, 46}, 0},
    {"-5", {-5}, 0},
    {"2.5+3.5", {2, 4}, 0},
    {"2147483647", {2147483647}, 0},
    {"", {}, RuntimeError::TypeMismatch},
    {"x", {}, RuntimeError::TypeMismatch},
    {"29+x", {29}, RuntimeError::TypeMismatch},
    {"29+", {29}, RuntimeError::TypeMismatch},
    {"+29", {}, RuntimeError::TypeMismatch},
    {"29 46", {}, RuntimeError::TypeMismatch},
    {"0x1D", {}, RuntimeError::TypeMismatch},
    {"inf", {}, RuntimeError::TypeMismatch},
    {"nan", {}, RuntimeError::TypeMismatch},
    {"-", {}, RuntimeError::TypeMismatch},
    {"29+2147483648", {29}, RuntimeError::Overflow},
    {"-2147483649", {}, RuntimeError::Overflow},
    {"1e400", {}, RuntimeError::Overflow},
};
INSTANTIATE_TEST_SUITE_P(Sequences, ScanCodesTest, testing::ValuesIn(Rows));

}  // namespace

}  // namespace orvelle
