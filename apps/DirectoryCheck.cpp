#include "apps/DirectoryCheck.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

#include "apps/OneLine.h"
#include "simulators/directory/DirectoryReading.h"

namespace orvelle {

namespace {

using directory::Fault;

// One byte more than may be, so that its reader tells of it, and no more.
std::string ReadAll(std::istream& from) {
    std::string text(directory::LongestDirectory + 1, '\0');
    from.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(from.gcount()));
    return text;
}

std::optional<std::string> TextOf(const std::string& file) {
    if (file == "-") return ReadAll(std::cin);
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) {
        std::cerr << "orvelle-sim: " << file << " can't be read: it is a folder.\n";
        return std::nullopt;
    }
    std::ifstream stream(file, std::ios::binary);
    if (stream) return ReadAll(stream);
    std::cerr << "orvelle-sim: " << file << " can't be read: " << std::strerror(errno) << ".\n";
    return std::nullopt;
}

// "FILE:LINE: FIELD: sentence"; a fault of the whole text names no field.
void Print(const std::string& file, const char* kind, const Fault& fault) {
    std::cout << file << ":" << fault.Line << ": " << kind
              << OneLine(fault.Field.empty() ? fault.Sentence : fault.Field + ": " + fault.Sentence) << "\n";
}

std::string Counted(std::size_t count, const char* one, const char* several) {
    return std::to_string(count) + " " + (count == 1 ? one : several);
}

std::string Contents(const std::optional<directory::Directory>& content) {
    if (!content) return "no directory";
    return Counted(content->Servers.size(), "server", "servers") + ", " +
           Counted(content->Stations.size(), "station", "stations") + ", " +
           Counted(content->Everywhere.size(), "channel", "channels") + " everywhere";
}

// The exit status.
int Check(const std::string& file) {
    const std::optional<std::string> text = TextOf(file);
    if (!text) return EXIT_FAILURE;
    const directory::ReadText read = directory::ReadDirectory(*text);
    for (const Fault& fault : read.Faults) Print(file, "", fault);
    for (const Fault& oddity : directory::FindOddities(read)) Print(file, "note: ", oddity);
    const std::string name = read.Content ? read.Content->Name : "";
    std::cout << OneLine(name.empty() ? file : name) << ": " << Contents(read.Content) << "; "
              << (read.FaultCount == 0 ? "no mistake" : Counted(read.FaultCount, "mistake", "mistakes"))
              << (read.FaultCount > read.Faults.size() ? ", the first of them told" : "") << ".\n";
    return read.FaultCount == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int CheckDirectories(const std::vector<std::string>& files) {
    int status = EXIT_SUCCESS;
    for (const std::string& file : files)
        if (Check(file) != EXIT_SUCCESS) status = EXIT_FAILURE;
    return status;
}

}  // namespace orvelle
