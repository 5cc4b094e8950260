#include "adapters/linux/ProcessProgram.h"

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <exception>

#include "platform/RuntimeError.h"

namespace orvelle::linux {

namespace {

std::string Meaning(int errorNumber) {
    switch (errorNumber) {
        case RuntimeError::Overflow:
            return ": overflow";
        case RuntimeError::SubscriptOutOfRange:
            return ": subscript out of range";
        case RuntimeError::TypeMismatch:
            return ": type mismatch";
        default:
            return "";
    }
}

}  // namespace

std::string ProcessProgram::NameOfError(int errorNumber) {
    return "run-time error " + std::to_string(errorNumber) + Meaning(errorNumber);
}

void ProcessProgram::CleanUp() {
    Last.SayOrderly();
    // Each is taken off first, so that an end inside a clean-up goes on with the others.
    while (!cleanUps.empty()) {
        const Attachment<> cleanUp = std::move(cleanUps.back());
        cleanUps.pop_back();
        try {
            cleanUp();
        } catch (...) {
        }
    }
    std::fflush(nullptr);
}

void ProcessProgram::End() {
    CleanUp();
    _exit(0);
}

void ProcessProgram::Fail(int errorNumber) { Fail(NameOfError(errorNumber)); }

void ProcessProgram::Fail(const std::string& reason) {
    CleanUp();
    const std::string line = "OrvelleCP: " + reason + "\n";
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, line.data(), line.size());
    _exit(ExitOfRunTimeError);
}

void ProcessProgram::EndBySignal(int signalNumber) {
    CleanUp();
    signal(signalNumber, SIG_DFL);
    sigset_t one;
    sigemptyset(&one);
    sigaddset(&one, signalNumber);
    pthread_sigmask(SIG_UNBLOCK, &one, nullptr);
    raise(signalNumber);
    _exit(128 + signalNumber);
}

}  // namespace orvelle::linux
