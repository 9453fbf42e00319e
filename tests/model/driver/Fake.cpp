#include "Fake.h"

#include <pthread.h>

#include <cstring>
#include <new>
#include <stdexcept>

namespace model {

std::string noted(const std::string& value)
{
    return shown(value);
}

std::string noted(const std::vector<std::string>& values)
{
    std::string out;
    for (const std::string& value : values)
        out += (out.empty() ? "" : ",") + shown(value);
    return "[" + out + "]";
}

std::string noted(float value)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return std::to_string(bits);
}

void FakeControl::begin(const std::string& name, Notes* notes)
{
    name_ = name;
    notes_ = notes;
    setScript(script_);
}

namespace {

bool isOneOf(char mode, const char* modes)
{
    return std::strchr(modes, mode) != nullptr;
}

} // namespace

void FakeControl::setScript(const FakeScript& script)
{
    script_ = script;
    calls_ = 0;
    lastErrorThrows_ = 0;
    if (script.at != 0) mayEndThread_ = isOneOf(script.mode, "eEkn");
}

void FakeControl::note(const std::string& call) const
{
    if (notes_ != nullptr) notes_->push_back(name_ + ":" + call);
}

void FakeControl::throwIfLastErrorDoes() const
{
    if (lastErrorThrows_ == 'l') throw std::bad_alloc();
    if (lastErrorThrows_ == 'm') throw std::runtime_error("foreign");
    if (lastErrorThrows_ == 'n') pthread_exit(nullptr);
}

ZelDataResult_tags FakeControl::call(const std::string& operation, const Work& work,
                                     const std::string& arguments,
                                     const std::function<void()>& half) const
{
    note(operation + arguments);
    ++calls_;
    if (calls_ == script_.at) return goWrong(work, half);
    const auto code = work();
    keep(code);
    return code;
}

ZelDataResult_tags FakeControl::goWrong(const Work& work, const std::function<void()>& half) const
{
    ++wentWrong_;
    const char mode = script_.mode;
    if (half && isOneOf(mode, "hBXE")) half();
    if (mode == 'd') static_cast<void>(work()); // returns the script's code
    if (isOneOf(mode, "bB")) throw std::bad_alloc();
    if (mode == 'x') throw std::runtime_error("foreign");
    if (mode == 'X') throw 42;
    if (isOneOf(mode, "eE")) pthread_exit(nullptr);
    if (mode == 'k') {
        pthread_cancel(pthread_self());
        pthread_testcancel();
    }
    if (isOneOf(mode, "lmn")) lastErrorThrows_ = mode;
    keep(script_.last);
    return script_.code;
}

} // namespace model
