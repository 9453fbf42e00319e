/// @file
/// The objects of a script, and the answer to its current line.

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

/// Runs @p call in a thread of its own and returns its result, or "ended" if it ends the thread.
std::string inThread(const std::function<std::string()>& call);

/// The last error of @p object as eight digits, "throws" or "ended".
std::string lastError(const ZelInterchangeData::i_ZelDataResult& object);

/// Objects by number, the notes of the fakes, and the words of script and answer.
class Session {
public:
    /// Operations write files below @p folder.
    explicit Session(std::string folder) : folder_(std::move(folder)) {}

    const std::string& folder() const { return folder_; }
    Script& script() { return *script_; }
    /// Where the fakes note their calls.
    std::vector<std::string>& notes() { return notes_; }

    /// Appends @p word to the answer.
    void answer(const std::string& word) { answer_ += word + " "; }
    /// Empties the answer.
    void forget() { answer_.clear(); }

    /// Object number @p slot as an @p I. Throws MissingObject if there is none.
    template <class I>
    I& object(int slot)
    {
        const auto found = objects_.find(slot);
        I* object = found == objects_.end() ? nullptr : dynamic_cast<I*>(found->second.get());
        if (!object) throw MissingObject();
        return *object;
    }
    /// Gives @p object the number @p slot and destroys the object that had it.
    void keep(int slot, std::unique_ptr<ZelInterchangeData::i_ZelDataResult> object);
    /// Destroys object number @p slot and returns whether there was one.
    bool drop(int slot) { return objects_.erase(slot) != 0; }

    /// Runs one line with @p operations and returns the whole answer.
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
