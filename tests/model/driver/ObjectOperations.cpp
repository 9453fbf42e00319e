#include "FakeCollections.h"
#include "FakeHeader.h"
#include "FakeItems.h"
#include "FakeLanguage.h"
#include "Operations.h"

#include "core/ZelDataCoreXmp.h"

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <stdexcept>

namespace model {

using namespace ZelInterchangeData;

namespace {

using Made = std::unique_ptr<i_ZelDataResult>;
using Maker = std::function<Made()>;

template <class I>
Maker data(ZelDataResult_tags (*factory)(I**))
{
    return [factory] {
        I* made = nullptr;
        if (failed(factory(&made))) throw std::runtime_error("no object was made");
        return Made(made);
    };
}

template <class I>
Maker formatter(ZelDataResult_tags (*factory)(I**, ZelDataFormatType_tags))
{
    return [factory] {
        I* made = nullptr;
        if (failed(factory(&made, ZelDataFormat_Xmp))) {
            throw std::runtime_error("no formatter was made");
        }
        return Made(made);
    };
}

template <class T>
Maker made()
{
    return [] { return std::make_unique<T>(); };
}

const std::map<std::string, Maker>& makers()
{
    using U = ZelDataUtilities;
    static const std::map<std::string, Maker> makers{
        {"H", data(&U::createHeaderData)},
        {"CI", data(&U::createCaptionItemData)},
        {"C", data(&U::createCaptionData)},
        {"TI", data(&U::createTocItemData)},
        {"T", data(&U::createTocData)},
        {"SI", data(&U::createScreenTextItemData)},
        {"S", data(&U::createScreenTextData)},
        {"HF", formatter(&U::createHeaderFormatter)},
        {"CF", formatter(&U::createCaptionFormatter)},
        {"TF", formatter(&U::createTocFormatter)},
        {"SF", formatter(&U::createScreenTextFormatter)},
        {"D", [] { return Made(ZELDataCreator::createInterchangeData()); }},
        {"X", made<ZelDataCoreXmp>()},
        {"fL", made<FakeLanguage>()},
        {"fH", made<FakeHeader>()},
        {"fCI", made<FakeCaptionItem>()},
        {"fC", made<FakeCaptions>()},
        {"fTI", made<FakeTocItem>()},
        {"fT", made<FakeToc>()},
        {"fSI", made<FakeScreenTextItem>()},
        {"fS", made<FakeScreenText>()},
    };
    return makers;
}

int slotOf(Session& session)
{
    return session.script().read<int>();
}

void makeObject(Session& session)
{
    const int slot = slotOf(session);
    Made object = makers().at(session.script().word())();
    if (auto* fake = dynamic_cast<FakeControl*>(object.get())) {
        fake->begin(std::to_string(slot), &session.notes());
    }
    session.answer(lastError(*object));
    session.keep(slot, std::move(object));
}

void dropObject(Session& session)
{
    session.answer(session.drop(slotOf(session)) ? "deleted" : "noobj");
}

void setLastError(Session& session)
{
    const auto& object = session.object<i_ZelDataResult>(slotOf(session));
    object.setLastError(session.script().read<ZelDataResult_tags>());
    session.answer(lastError(object));
}

void scriptFake(Session& session)
{
    auto& fake = session.object<FakeControl>(slotOf(session));
    FakeScript script;
    script.at = session.script().read<unsigned long>();
    script.mode = session.script().word().front();
    script.code = session.script().read<ZelDataResult_tags>();
    script.last = session.script().read<ZelDataResult_tags>();
    script.keepsOwn = session.script().read<bool>();
    fake.setScript(script);
    session.answer("scripted");
}

void addRawText(Session& session)
{
    auto& texts = session.object<FakeTexts>(slotOf(session));
    const auto text = session.script().read<std::string>();
    texts.append(text, session.script().read<std::string>());
    session.answer("texted");
}

void addRawItem(Session& session)
{
    auto& holder = session.object<FakeItemHolder>(slotOf(session));
    if (!holder.addClone(session.object<FakeControl>(slotOf(session)))) throw MissingObject();
    session.answer("added");
}

} // namespace

void addObjectOperations(Operations& operations)
{
    operations.insert({
        {"object.new", makeObject},
        {"object.delete", dropObject},
        {"object.setLastError", setLastError},
        {"fake.script", scriptFake},
        {"fake.text", addRawText},
        {"fake.item", addRawItem},
    });
}

} // namespace model
