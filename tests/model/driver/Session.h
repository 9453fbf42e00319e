/// @file
/// The objects that a script works on, and the answer to the line that is being run.

#ifndef ZELINTERCHANGEDATA_TESTS_MODEL_SESSION_H
#define ZELINTERCHANGEDATA_TESTS_MODEL_SESSION_H

#include "Script.h"

#include "ZelInterchangeData/i_ZelDataResult.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace model {

/// What @p call gives, or "ended" where it ends its thread, which is another one than this.
std::string inThread(const std::function<std::string()>& call);

/// The last error of @p object as eight digits, "throws" or "ended".
std::string lastError(const ZelInterchangeData::i_ZelDataResult& object);

/// Objects by number, the notes of the fakes, and the words of script and answer.
class Session {
public:
    /// Files are written below @p folder.
    explicit Session(std::string folder) : folder_(std::move(folder)) {}

    const std::string& folder() const { return folder_; }
    Script& script() { return *script_; }
    /// Where the fakes note their calls.
    std::vector<std::string>& notes() { return notes_; }

    /// Appends @p word to the answer.
    void answer(const std::string& word) { answer_ += word + " "; }
    /// Starts the answer anew.
    void forget() { answer_.clear(); }

    /// The object number @p slot as an @p I; throws MissingObject when it is none.
    template <class I>
    I& object(int slot)
    {
        const auto found = objects_.find(slot);
        I* object = found == objects_.end() ? nullptr : dynamic_cast<I*>(found->second.get());
        if (!object) throw MissingObject();
        return *object;
    }
    /// Makes @p object number @p slot and destroys the one that was.
    void keep(int slot, std::unique_ptr<ZelInterchangeData::i_ZelDataResult> object);
    /// Whether there was an object number @p slot, which is destroyed.
    bool drop(int slot) { return objects_.erase(slot) != 0; }

    /// Runs one line with @p operations and gives the whole answer.
    using Operation = std::function<void(Session&)>;
    std::string run(const std::string& line, const std::map<std::string, Operation>& operations);

private:
    std::string folder_;
    std::vector<std::string> notes_;
    std::map<int, std::unique_ptr<ZelInterchangeData::i_ZelDataResult>> objects_;
    std::unique_ptr<Script> script_;
    std::string answer_;
};

/// All operations by name.
using Operations = std::map<std::string, Session::Operation>;

} // namespace model

#endif
