#include "tests/pulse/ServerHand.h"

#include <gtest/gtest.h>

namespace orvelle::pulse {

namespace {

// Within quotes, as the servers read the arguments of modules and the properties in them.
std::string Quoted(const std::string& text, char quote) {
    std::string quoted(1, quote);
    for (const char character : text) {
        if (character == quote || character == '\\') quoted += '\\';
        quoted += character;
    }
    return quoted + quote;
}

// A module's argument that holds a description.
std::string Described(const std::string& argument, const std::string& description) {
    return " " + argument + "=" + Quoted("device.description=" + Quoted(description, '"'), '\'');
}

}  // namespace

ServerHand::ServerHand()
    : loop(pa_mainloop_new()), context(pa_context_new(pa_mainloop_get_api(loop), "another program")) {
    EXPECT_EQ(pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr), 0);
    while (pa_context_get_state(context) != PA_CONTEXT_READY && PA_CONTEXT_IS_GOOD(pa_context_get_state(context)))
        pa_mainloop_iterate(loop, 1, nullptr);
    EXPECT_EQ(pa_context_get_state(context), PA_CONTEXT_READY);
}

ServerHand::~ServerHand() {
    pa_context_disconnect(context);
    pa_context_unref(context);
    pa_mainloop_free(loop);
}

void ServerHand::Finish(pa_operation* operation) {
    ASSERT_NE(operation, nullptr);
    while (pa_operation_get_state(operation) == PA_OPERATION_RUNNING) pa_mainloop_iterate(loop, 1, nullptr);
    pa_operation_unref(operation);
}

std::uint32_t ServerHand::Load(const std::string& module, const std::string& arguments) {
    std::uint32_t number = PA_INVALID_INDEX;
    Finish(pa_context_load_module(
        context, module.c_str(), arguments.c_str(),
        [](pa_context*, std::uint32_t index, void* user) { *static_cast<std::uint32_t*>(user) = index; }, &number));
    EXPECT_NE(number, PA_INVALID_INDEX) << module << " " << arguments;
    return number;
}

void ServerHand::Unload(std::uint32_t module) { Finish(pa_context_unload_module(context, module, nullptr, nullptr)); }

std::uint32_t ServerHand::AddSink(const std::string& name, const std::string& description) {
    return Load("module-null-sink", "sink_name=" + name + Described("sink_properties", description));
}

std::uint32_t ServerHand::AddSource(const std::string& module, const std::string& name,
                                    const std::string& description) {
    if (module == "module-null-sink")
        return Load(module,
                    "media.class=Audio/Source/Virtual sink_name=" + name + Described("sink_properties", description));
    return Load(module, "source_name=" + name + " description=" + Quoted(description, '\''));
}

void ServerHand::SetVolume(DeviceKind kind, const std::string& name, const pa_cvolume& volume) {
    const auto set =
        kind == DeviceKind::Source ? &pa_context_set_source_volume_by_name : &pa_context_set_sink_volume_by_name;
    Finish(set(context, name.c_str(), &volume, nullptr, nullptr));
}

void ServerHand::SetPercent(DeviceKind kind, const std::string& name, Long percent) {
    pa_cvolume volume = Volume(kind, name);
    pa_cvolume_set(&volume, volume.channels, static_cast<pa_volume_t>(percent) * PA_VOLUME_NORM / 100);
    SetVolume(kind, name, volume);
}

pa_cvolume ServerHand::Volume(DeviceKind kind, const std::string& name) { return Ask(kind, name).Volume; }

std::string ServerHand::Description(DeviceKind kind, const std::string& name) { return Ask(kind, name).Description; }

Long ServerHand::Percent(DeviceKind kind, const std::string& name) {
    const pa_cvolume volume = Volume(kind, name);
    return static_cast<Long>((std::uint64_t{pa_cvolume_max(&volume)} * 100 + PA_VOLUME_NORM / 2) / PA_VOLUME_NORM);
}

void ServerHand::SetDefault(DeviceKind kind, const std::string& name) {
    const auto set = kind == DeviceKind::Source ? &pa_context_set_default_source : &pa_context_set_default_sink;
    Finish(set(context, name.c_str(), nullptr, nullptr));
}

ServerHand::Told ServerHand::Ask(DeviceKind kind, const std::string& name) {
    Told told;
    const auto take = [](const auto& info, void* user) {
        auto& answer = *static_cast<Told*>(user);
        answer.Volume = info.volume;
        answer.Description = info.description;
    };
    if (kind == DeviceKind::Source)
        Finish(pa_context_get_source_info_by_name(
            context, name.c_str(),
            [](pa_context*, const pa_source_info* info, int, void* user) {
                if (info) decltype(take){}(*info, user);
            },
            &told));
    else
        Finish(pa_context_get_sink_info_by_name(
            context, name.c_str(),
            [](pa_context*, const pa_sink_info* info, int, void* user) {
                if (info) decltype(take){}(*info, user);
            },
            &told));
    return told;
}

}  // namespace orvelle::pulse
