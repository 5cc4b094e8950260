#include "deck/fields/ParameterNames.h"

#include "platform/EngineRecord.h"

namespace orvelle::deck {

using namespace engine_record;

namespace {

constexpr ParameterKind Number = ParameterKind::Number;
constexpr ParameterKind Text = ParameterKind::Text;

constexpr ParameterName Names[] = {
    {Number, FirstConstant, "Always 3"},
    {Number, SecondConstant, "Always 7"},
    {Number, EngineRuns, "Engine runs"},
    {Number, SpeakersHaveDevice, "Speakers have own device"},
    {Number, AllRoomsOnSpeakers, "All rooms on speakers"},
    {Number, AudioRuns, "Engine audio runs"},
    {Number, Transmitting, "Transmitting"},
    {Number, RoomState + 0, "COM1 state"},
    {Number, RoomState + 1, "COM2 state"},
    {Number, RoomState + 2, "Private state"},
    {Number, RoomOnSpeakers + 0, "COM1 on speakers"},
    {Number, RoomOnSpeakers + 1, "COM2 on speakers"},
    {Number, RoomOnSpeakers + 2, "Private on speakers"},
    {Number, RoomNotReceived + 0, "COM1 not received"},
    {Number, RoomNotReceived + 1, "COM2 not received"},
    {Number, RoomNotReceived + 2, "Private not received"},
    {Number, RoomNotTransmitting + 0, "COM1 not transmitting"},
    {Number, RoomNotTransmitting + 1, "COM2 not transmitting"},
    {Number, RoomNotTransmitting + 2, "Private not transmitting"},
    {Number, RoomCarriesAudio + 0, "COM1 carries audio"},
    {Number, RoomCarriesAudio + 1, "COM2 carries audio"},
    {Number, RoomCarriesAudio + 2, "Private carries audio"},
    {Number, RoomTransmits + 0, "COM1 transmits"},
    {Number, RoomTransmits + 1, "COM2 transmits"},
    {Number, RoomTransmits + 2, "Private transmits"},
    {Number, RoomHasPriority + 0, "COM1 has priority"},
    {Number, RoomHasPriority + 1, "COM2 has priority"},
    {Number, RoomHasPriority + 2, "Private has priority"},
    {Text, RoomAddressText + 0, "COM1 address"},
    {Text, RoomAddressText + 1, "COM2 address"},
    {Text, RoomAddressText + 2, "Private address"},
    {Text, RoomStatusText + 0, "COM1 status text"},
    {Text, RoomStatusText + 1, "COM2 status text"},
    {Text, RoomStatusText + 2, "Private status text"},
};

}  // namespace

std::span<const ParameterName> ParameterNames() { return Names; }

}  // namespace orvelle::deck
