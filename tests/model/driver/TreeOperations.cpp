#include "Operations.h"

#include "xml/ZelDataXmlAttribute.h"
#include "xml/ZelDataXmlStream.h"

#include <memory>
#include <vector>

namespace model {

using namespace ZelInterchangeData;

namespace {

/// An attribute and, once it has a name, its value.
struct KnownAttribute {
    ZelDataXmlAttribute* attribute = nullptr;
    ZelDataXmlAttributeValue* value = nullptr;
};

/// A stream, with its nodes and attributes in the order in which it first returned them.
class Tree {
public:
    Tree() { nodes_.push_back(&stream_); }

    ZelDataXmlStream& stream() { return stream_; }
    ZelDataXmlNode& node(std::size_t index) { return *at(nodes_, index); }
    KnownAttribute& attribute(std::size_t index) { return at(attributes_, index); }

    std::string add(ZelDataXmlAttribute& attribute)
    {
        attributes_.push_back({&attribute, nullptr});
        return "a" + std::to_string(attributes_.size() - 1);
    }
    /// The number of @p node; a node that was never returned before gets a new one.
    std::string made(ZelDataXmlNode& node)
    {
        if (known(node) == "none") nodes_.push_back(&node);
        return known(node);
    }
    /// The number of @p node, which was returned when the text of @p of was set. For a node outside
    /// the tree "none"; it gets children, which must never appear in the tree.
    std::string returned(ZelDataXmlNode& node, const ZelDataXmlNode& of)
    {
        if (&node == of.parent()) return made(node);
        std::string number = known(node);
        if (number == "none") node < "outside/of/the/tree";
        return number;
    }

private:
    template <class T>
    static T& at(std::vector<T>& all, std::size_t index)
    {
        if (index >= all.size()) throw MissingObject();
        return all[index];
    }
    std::string known(const ZelDataXmlNode& node) const
    {
        for (std::size_t index = 0; index < nodes_.size(); ++index) {
            if (nodes_[index] == &node) return std::to_string(index);
        }
        return "none";
    }

    ZelDataXmlStream stream_;
    std::vector<ZelDataXmlNode*> nodes_;
    std::vector<KnownAttribute> attributes_;
};

/// The tree of the session, and the objects in it that the script names.
class TreeSession {
public:
    TreeSession() : tree_(std::make_unique<Tree>()) {}

    void renew() { tree_ = std::make_unique<Tree>(); }
    Tree& tree() { return *tree_; }
    ZelDataXmlNode& node(Session& session) { return tree_->node(index(session)); }
    KnownAttribute& attribute(Session& session) { return tree_->attribute(index(session)); }

private:
    static std::size_t index(Session& session) { return session.script().read<std::size_t>(); }

    std::unique_ptr<Tree> tree_;
};

using SharedTree = std::shared_ptr<TreeSession>;

/// Sets the text of @p target to the script's, as characters or as a string.
template <class Target>
decltype(auto) giveText(Target& target, Session& session)
{
    const auto text = session.script().read<std::string>();
    return session.script().read<int>() == 0 ? target < text.c_str() : target < text;
}

ZelDataXmlNode& giveNumber(ZelDataXmlAttributeValue& value, Session& session)
{
    const std::string kind = session.script().word();
    if (kind == "i") return value < session.script().read<int>();
    if (kind == "l") return value < session.script().read<long>();
    if (kind == "q") return value < session.script().read<long long>();
    return value < session.script().read<double>();
}

ZelDataXmlNode& giveNumber(ZelDataXmlValue& value, Session& session)
{
    if (session.script().word() == "l") return value < session.script().read<long>();
    return value < session.script().read<long long>();
}

ZelDataXmlAttributeValue& named(const KnownAttribute& attribute)
{
    if (attribute.value == nullptr) throw MissingObject();
    return *attribute.value;
}

ZelDataXmlValue& textOf(ZelDataXmlNode& node)
{
    return node < static_cast<void**>(nullptr);
}

void addNodeVerbs(Operations& operations, const SharedTree& shared)
{
    operations["X.path"] = [shared](Session& session) {
        session.answer(shared->tree().made(giveText(shared->node(session), session)));
    };
    operations["X.name"] = [shared](Session& session) {
        auto& node = shared->node(session);
        session.answer(shared->tree().made(node.setName(session.script().read<std::string>())));
    };
    operations["X.group"] = [shared](Session& session) {
        auto& group = shared->node(session) < static_cast<long long*>(nullptr);
        session.answer(shared->tree().made(group));
    };
    operations["X.assign"] = [shared](Session& session) {
        auto& node = shared->node(session);
        auto& next = node = session.script().read<long>();
        session.answer(shared->tree().returned(next, node));
    };
    operations["X.text"] = [shared](Session& session) {
        auto& node = shared->node(session);
        auto& next = giveText(textOf(node), session);
        session.answer(shared->tree().returned(next, node));
    };
    operations["X.textnumber"] = [shared](Session& session) {
        auto& node = shared->node(session);
        auto& next = giveNumber(textOf(node), session);
        session.answer(shared->tree().returned(next, node));
    };
}

void addAttributeVerbs(Operations& operations, const SharedTree& shared)
{
    operations["X.attr"] = [shared](Session& session) {
        session.answer(shared->tree().add(shared->node(session) < static_cast<void*>(nullptr)));
    };
    operations["X.attrname"] = [shared](Session& session) {
        auto& attribute = shared->attribute(session);
        const auto name = session.script().read<std::string>();
        attribute.value = &(*attribute.attribute < name.c_str());
        session.answer("named");
    };
    operations["X.attrtext"] = [shared](Session& session) {
        auto& value = named(shared->attribute(session));
        session.answer(shared->tree().made(giveText(value, session)));
    };
    operations["X.attrnumber"] = [shared](Session& session) {
        auto& value = named(shared->attribute(session));
        session.answer(shared->tree().made(giveNumber(value, session)));
    };
}

void addOutput(Operations& operations, const SharedTree& shared)
{
    operations["X.write"] = [shared](Session& session) {
        const auto& node = shared->node(session);
        auto text = session.script().read<std::string>();
        node.write(text);
        session.answer(shown(text));
    };
    operations["X.attrwrite"] = [shared](Session& session) {
        const auto& attribute = shared->attribute(session);
        auto text = session.script().read<std::string>();
        attribute.attribute->write(text);
        session.answer(shown(text));
    };
    operations["X.xml"] = [shared](Session& session) {
        session.answer(shown(shared->tree().stream().getXml(session.script().read<bool>())));
    };
}

} // namespace

void addTreeOperations(Operations& operations)
{
    const auto shared = std::make_shared<TreeSession>();
    addNodeVerbs(operations, shared);
    addAttributeVerbs(operations, shared);
    addOutput(operations, shared);
    operations["X.new"] = [shared](Session& session) {
        shared->renew();
        session.answer("new");
    };
    operations["X.parse"] = [shared](Session& session) {
        shared->tree().stream().parseXml(session.script().read<std::string>());
        session.answer("parsed");
    };
}

} // namespace model
