#include "Session.h"

#include "Fake.h"

#include <thread>

namespace model {

std::string inThread(const std::function<std::string()>& call)
{
    std::string result = "ended";
    std::thread([&] { result = call(); }).join();
    return result;
}

std::string lastError(const ZelInterchangeData::i_ZelDataResult& object)
{
    const auto read = [&]() -> std::string {
        try {
            return hexadecimal(object.getLastError());
        } catch (const std::exception&) {
            return "throws";
        }
    };
    return FakeControl::mayEndThread() ? inThread(read) : read();
}

void Session::keep(int slot, std::unique_ptr<ZelInterchangeData::i_ZelDataResult> object)
{
    objects_[slot] = std::move(object);
}

std::string Session::run(const std::string& line,
                         const std::map<std::string, Operation>& operations)
{
    script_ = std::make_unique<Script>(line);
    notes_.clear();
    forget();
    try {
        operations.at(script_->word())(*this);
    } catch (const MissingObject&) {
        forget();
        answer("noobj");
    }
    answer("#");
    for (const std::string& note : notes_)
        answer(note);
    return answer_ + "# " + std::to_string(FakeControl::alive());
}

} // namespace model
