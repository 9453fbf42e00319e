#include "Session.h"

#include "Fake.h"

namespace model {

std::string lastError(const ZelInterchangeData::i_ZelDataResult& object)
{
    try {
        return hexadecimal(object.getLastError());
    } catch (...) {
        return "throws";
    }
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
