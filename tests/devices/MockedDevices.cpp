#include "tests/devices/MockedDevices.h"

#include <gtest/gtest.h>
#include <umockdev.h>
#include <unistd.h>

#include <fstream>
#include <map>

namespace orvelle {

namespace {

// The sizes with which the reading library asks: an answer of another size is none.
constexpr std::size_t NameBytes = 255;
constexpr std::size_t KeyBytes = 96;
constexpr std::size_t EffectBytes = 16;
constexpr std::size_t OtherBytes = 8;

std::string Hex(const std::string& bytes) {
    constexpr char Digits[] = "0123456789ABCDEF";
    std::string text;
    for (const char byte : bytes) {
        text += Digits[static_cast<unsigned char>(byte) >> 4];
        text += Digits[static_cast<unsigned char>(byte) & 0xF];
    }
    return text;
}

std::string Padded(std::string text, std::size_t size) {
    text.resize(size);
    return Hex(text);
}

std::string Bits(const std::vector<int>& numbers, std::size_t bytes) {
    std::string bits(bytes, '\0');
    for (const int number : numbers) bits[static_cast<std::size_t>(number) / 8] |= static_cast<char>(1 << (number % 8));
    return Hex(bits);
}

std::string NodeName(int number) { return "/dev/input/event" + std::to_string(number); }

std::string Answers(int number, const MockedDevice& device) {
    std::string text = "@DEV " + NodeName(number) + "\n";
    const auto answer = [&](const std::string& question, const std::string& hex) {
        text += question + " 0 " + hex + "\n";
    };
    answer("EVIOCGVERSION", "01000100");
    answer("EVIOCGID", "0300341278560100");
    answer("EVIOCGNAME", Padded(device.Name, NameBytes));
    answer("EVIOCGPHYS", Padded("mocked/" + std::to_string(number), NameBytes));
    answer("EVIOCGUNIQ", Padded("", NameBytes));
    answer("EVIOCGPROP", Bits({}, OtherBytes));
    answer("EVIOCGBIT(0)",
           Bits(device.Axes.empty() ? std::vector{EV_SYN, EV_KEY} : std::vector{EV_SYN, EV_KEY, EV_ABS}, OtherBytes));
    answer("EVIOCGBIT(1)", Bits(device.Keys, KeyBytes));
    answer("EVIOCGBIT(3)", Bits(device.Axes, OtherBytes));
    for (const int kind : {2, 4, 5, 0x11, 0x12})
        answer("EVIOCGBIT(" + std::to_string(kind) + ")", Bits({}, OtherBytes));
    answer("EVIOCGBIT(21)", Bits({}, EffectBytes));
    answer("EVIOCGKEY", Bits(device.KeysDown, KeyBytes));
    for (const char* const state : {"EVIOCGLED", "EVIOCGSW"}) answer(state, Bits({}, OtherBytes));
    for (const int axis : device.Axes)
        answer("EVIOCGABS(" + std::to_string(axis) + ")", Padded("", sizeof(input_absinfo)));
    return text;
}

}  // namespace

MockedDevices::MockedDevices() : testbed(umockdev_testbed_new()) {
    std::filesystem::create_directories(RealFolder().parent_path());
}

MockedDevices::~MockedDevices() { g_object_unref(testbed); }

void MockedDevices::Add(int number, const MockedDevice& device) {
    GError* error = nullptr;
    const std::string node = "input/event" + std::to_string(number);
    const std::string answers = RealFolder().parent_path().parent_path() / ("answers" + std::to_string(number));
    std::ofstream(answers) << Answers(number, device);
    EXPECT_TRUE(umockdev_testbed_load_ioctl(testbed, nullptr, answers.c_str(), &error))
        << (error ? error->message : "");
    const std::string description = "P: /devices/mocked" + std::to_string(number) + "\nN: " + node +
                                    "\nE: DEVNAME=/dev/" + node + "\nE: SUBSYSTEM=input\n";
    EXPECT_TRUE(umockdev_testbed_add_from_string(testbed, description.c_str(), &error))
        << (error ? error->message : "");
}

void MockedDevices::Remove(int number) {
    umockdev_testbed_remove_device(testbed, ("/sys/devices/mocked" + std::to_string(number)).c_str());
    std::filesystem::remove(RealFolder() / ("event" + std::to_string(number)));
}

void MockedDevices::Tell(int number, int type, int code, int value) {
    const int node = umockdev_testbed_get_dev_fd(testbed, NodeName(number).c_str());
    const auto at = [](int eventType, int eventCode, int eventValue) {
        input_event event{};
        event.type = static_cast<std::uint16_t>(eventType);
        event.code = static_cast<std::uint16_t>(eventCode);
        event.value = eventValue;
        return event;
    };
    const input_event events[] = {at(type, code, value), at(EV_SYN, SYN_REPORT, 0)};
    EXPECT_EQ(write(node, events, sizeof events), static_cast<ssize_t>(sizeof events));
}

std::filesystem::path MockedDevices::RealFolder() const {
    gchar* const root = umockdev_testbed_get_root_dir(testbed);
    const std::filesystem::path folder = std::filesystem::path(root) / "dev" / "input";
    g_free(root);
    return folder;
}

}  // namespace orvelle
