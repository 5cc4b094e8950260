#include "deck/fields/ParameterNames.h"

namespace orvelle::deck {

namespace {

constexpr ParameterKind Number = ParameterKind::Number;
constexpr ParameterKind Text = ParameterKind::Text;

constexpr ParameterName Names[] = {
    {Number, 0, "Always 3"},
    {Number, 1, "Always 7"},
    {Number, 2, "Engine runs"},
    {Number, 3, "Speakers have own device"},
    {Number, 4, "All rooms on speakers"},
    {Number, 5, "Engine audio runs"},
    {Number, 6, "Transmitting"},
    {Number, 7, "COM1 state"},
    {Number, 8, "COM2 state"},
    {Number, 9, "Private state"},
    {Number, 10, "COM1 on speakers"},
    {Number, 11, "COM2 on speakers"},
    {Number, 12, "Private on speakers"},
    {Number, 13, "COM1 not received"},
    {Number, 14, "COM2 not received"},
    {Number, 15, "Private not received"},
    {Number, 16, "COM1 not transmitting"},
    {Number, 17, "COM2 not transmitting"},
    {Number, 18, "Private not transmitting"},
    {Number, 19, "COM1 carries audio"},
    {Number, 20, "COM2 carries audio"},
    {Number, 21, "Private carries audio"},
    {Number, 22, "COM1 transmits"},
    {Number, 23, "COM2 transmits"},
    {Number, 24, "Private transmits"},
    {Number, 25, "COM1 has priority"},
    {Number, 26, "COM2 has priority"},
    {Number, 27, "Private has priority"},
    {Text, 7, "COM1 address"},
    {Text, 8, "COM2 address"},
    {Text, 9, "Private address"},
    {Text, 10, "COM1 status text"},
    {Text, 11, "COM2 status text"},
    {Text, 12, "Private status text"},
};

}  // namespace

std::span<const ParameterName> ParameterNames() { return Names; }

}  // namespace orvelle::deck
