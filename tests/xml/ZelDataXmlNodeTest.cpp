/// @file
/// The verbs of the element tree, and what it writes.

#include "xml/ZelDataXmlNode.h"

#include "support/FailingAllocation.h"
#include "support/LongNumbers.h"
#include "xml/TreeVerbs.h"
#include "xml/ZelDataXmlStream.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

namespace ZelInterchangeData {
namespace {

static_assert(std::has_virtual_destructor_v<ZelDataXmlNode>);
static_assert(!std::is_copy_constructible_v<ZelDataXmlNode>);
static_assert(!std::is_copy_assignable_v<ZelDataXmlNode>);

// Paths

TEST(ZelDataXmlNode, APathMakesEachOfItsElementsAndReturnsTheLast)
{
    ZelDataXmlStream root;
    (root < "rdf:RDF/rdf:Description").attribute("last", "yes");
    EXPECT_EQ(root.getXml(false),
              R"(<rdf:RDF><rdf:Description last="yes" ></rdf:Description></rdf:RDF>)");
}

TEST(ZelDataXmlNode, AFollowingPathReusesItsInnerStep)
{
    ZelDataXmlStream root;
    root < "rdf:RDF/rdf:Description";
    (root < "rdf:RDF/zel:x").attribute("last", "yes");
    EXPECT_EQ(root.getXml(false), "<rdf:RDF><rdf:Description></rdf:Description>"
                                  R"(<zel:x last="yes" ></zel:x></rdf:RDF>)");
}

TEST(ZelDataXmlNode, TwoPathsWithTheSameFirstStepShareIt)
{
    ZelDataXmlStream root;
    root < "a/b";
    root < "a/c";
    EXPECT_EQ(root.getXml(false), "<a><b></b><c></c></a>");
}

TEST(ZelDataXmlNode, AStringPathWorksLikeACharacterPath)
{
    ZelDataXmlStream root;
    (root < std::string("a/b")).attribute("last", "yes");
    root < std::string("a/c");
    EXPECT_EQ(root.getXml(false), R"(<a><b last="yes" ></b><c></c></a>)");
}

TEST(ZelDataXmlNode, AStringPathEndsAtItsFirstZeroByte)
{
    ZelDataXmlStream root;
    root < std::string("a/b\0/c", 6);
    EXPECT_EQ(root.getXml(false), "<a><b></b></a>");
}

TEST(ZelDataXmlNode, AStringPathGoesThroughTheVirtualOperation)
{
    class Recorder : public ZelDataXmlNode {
    public:
        Recorder() : ZelDataXmlNode(nullptr) {}
        ZelDataXmlNode& operator<(const char* path) override
        {
            recorded = path;
            return *this;
        }
        std::string recorded;
    };
    Recorder recorder;
    ZelDataXmlNode& node = recorder;
    EXPECT_EQ(&(node < std::string("a/b")), &node);
    EXPECT_EQ(recorder.recorded, "a/b");
    EXPECT_EQ(&node.element("c"), &node);
    EXPECT_EQ(recorder.recorded, "c");
}

TEST(ZelDataXmlNode, ANewChildHasThisNodeAsItsParent)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& last = root < "a/b";
    EXPECT_EQ(last.parent()->parent(), &root);
    EXPECT_EQ(root.parent(), nullptr);
}

TEST(ZelDataXmlNode, AskingTwiceForANameNestsTheSecondElement)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& outer = root < "a";
    ZelDataXmlNode& inner = root < "a";
    EXPECT_EQ(inner.parent(), &outer);
    EXPECT_EQ(root.getXml(false), "<a><a></a></a>");
}

TEST(ZelDataXmlNode, AskingThreeTimesForANameNestsThreeElements)
{
    ZelDataXmlStream root;
    root < "a";
    root < "a";
    (root < "a").attribute("last", "yes");
    EXPECT_EQ(root.getXml(false), R"(<a><a><a last="yes" ></a></a></a>)");
}

TEST(ZelDataXmlNode, ARepeatedPathNestsOnlyItsLastStep)
{
    ZelDataXmlStream root;
    root < "a/b";
    (root < "a/b").attribute("last", "yes");
    EXPECT_EQ(root.getXml(false), R"(<a><b><b last="yes" ></b></b></a>)");
}

TEST(ZelDataXmlNode, ARepeatedNameIsAddedToTheExistingChild)
{
    ZelDataXmlStream root;
    root < "a/x";
    (root < "a").attribute("last", "yes");
    EXPECT_EQ(root.getXml(false), R"(<a><x></x><a last="yes" ></a></a>)");
}

TEST(ZelDataXmlNode, ARepeatedNamePassesThroughAllOfItsNestedElements)
{
    ZelDataXmlStream root;
    root < "a/a";
    (root < "a").attribute("last", "yes");
    EXPECT_EQ(root.getXml(false), R"(<a><a><a last="yes" ></a></a></a>)");
}

TEST(ZelDataXmlNode, ARepeatedNameIsReachedAsAnInnerStep)
{
    ZelDataXmlStream root;
    root < "x";
    root < "x/y";
    root < "x/z";
    EXPECT_EQ(root.getXml(false), "<x><y></y><z></z></x>");
}

TEST(ZelDataXmlNode, NamesAreComparedByteForByte)
{
    ZelDataXmlStream root;
    root < "a";
    root < "A";
    root < "a ";
    EXPECT_EQ(root.getXml(false), "<a></a><A></A><a ></a >");
}

/// A path on an empty root; the texts mark the element that the last call returned.
struct EmptySteps {
    const char* path;
    const char* once;
    const char* twice;
};

TEST(ZelDataXmlNode, EmptyStepsMakeNamelessElements)
{
    const std::vector<EmptySteps> cases{
        {"", "< r=\"1\" ></>", "<>< r=\"1\" ></></>"},
        {"/", "<>< r=\"1\" ></></>", "< r=\"1\" ><></></>"},
        {"//", "<><>< r=\"1\" ></></></>", "< r=\"1\" ><><></></></>"},
        {"///", "<><><>< r=\"1\" ></></></></>", "< r=\"1\" ><><><></></></></>"},
        {"a/", "<a>< r=\"1\" ></></a>", "<a><>< r=\"1\" ></></></a>"},
        {"/a", "<><a r=\"1\" ></a></>", "< r=\"1\" ><a></a></>"},
        {"a//", "<a><>< r=\"1\" ></></></a>", "<a>< r=\"1\" ><></></></a>"},
        {"a//b", "<a><><b r=\"1\" ></b></></a>", "<a>< r=\"1\" ><b></b></></a>"},
        {"/a/", "<><a>< r=\"1\" ></></a></>", "< r=\"1\" ><a><></></a></>"},
        {"a/b/", "<a><b>< r=\"1\" ></></b></a>", "<a><b><>< r=\"1\" ></></></b></a>"},
    };
    for (const EmptySteps& expected : cases) {
        SCOPED_TRACE(std::string("path \"") + expected.path + '"');
        ZelDataXmlStream once;
        (once < expected.path).attribute("r", "1");
        EXPECT_EQ(once.getXml(false), expected.once);
        ZelDataXmlStream twice;
        twice < expected.path;
        (twice < expected.path).attribute("r", "1");
        EXPECT_EQ(twice.getXml(false), expected.twice);
    }
}

TEST(ZelDataXmlNode, APathThatBeginsWithASlashEndsAtTheNamelessChild)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& nameless = root < "";
    EXPECT_EQ(&(root < "/a/b"), &nameless);
    EXPECT_EQ(root.getXml(false), "<></>");
}

TEST(ZelDataXmlNode, AnInnerEmptyStepEndsAtTheNamelessChildToo)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& nameless = root < "a/";
    EXPECT_EQ(&(root < "a//b"), &nameless);
    EXPECT_EQ(root.getXml(false), "<a><></></a>");
}

TEST(ZelDataXmlNode, AnEmptyPathIsARepeatedNameAfterASlashPath)
{
    ZelDataXmlStream root;
    root < "/";
    (root < "").attribute("r", "1");
    EXPECT_EQ(root.getXml(false), "<><>< r=\"1\" ></></></>");
}

TEST(ZelDataXmlNode, ANullPathIsAnEmptyPath)
{
    ZelDataXmlStream root;
    const char* none = nullptr;
    (root < none).attribute("r", "1");
    EXPECT_EQ(root.getXml(false), "< r=\"1\" ></>");
}

// Child groups

TEST(ZelDataXmlNode, ANewGroupAllowsASecondChildOfTheSameName)
{
    ZelDataXmlStream root;
    root < "a";
    root < groupVerb;
    root < "a";
    EXPECT_EQ(root.getXml(false), "<a></a><a></a>");
}

TEST(ZelDataXmlNode, TheGroupVerbReturnsTheNodeItself)
{
    ZelDataXmlStream root;
    EXPECT_EQ(&(root < groupVerb), &root);
}

TEST(ZelDataXmlNode, TheGroupVerbNeverReadsItsArgument)
{
    ZelDataXmlStream root;
    long long number = 42;
    root < "a";
    root < &number < "a";
    EXPECT_EQ(number, 42);
    EXPECT_EQ(root.getXml(false), "<a></a><a></a>");
}

TEST(ZelDataXmlNode, InANewGroupAnInnerStepMakesANewElement)
{
    ZelDataXmlStream root;
    root < "a/b";
    root < groupVerb;
    root < "a/c";
    root < "a/d";
    EXPECT_EQ(root.getXml(false), "<a><b></b></a><a><c></c><d></d></a>");
}

TEST(ZelDataXmlNode, ANewGroupDoesNotAffectTheChildren)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& a = root < "a";
    a < "x";
    root < groupVerb;
    (a < "x").attribute("last", "yes");
    EXPECT_EQ(root.getXml(false), R"(<a><x><x last="yes" ></x></x></a>)");
}

TEST(ZelDataXmlNode, ChildrenOfAllGroupsAreWrittenInOrderOfCreation)
{
    ZelDataXmlStream root;
    root < "c";
    root < "a";
    root < groupVerb;
    root < "b";
    root < "a";
    EXPECT_EQ(root.getXml(false), "<c></c><a></a><b></b><a></a>");
}

TEST(ZelDataXmlNode, EmptyGroupsAddNothing)
{
    ZelDataXmlStream root;
    root < groupVerb < groupVerb < "a";
    root < groupVerb;
    EXPECT_EQ(root.getXml(false), "<a></a>");
}

// Attributes

TEST(ZelDataXmlNode, AttributeAndTextAreWrittenWithASpaceBeforeTheBracket)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& n = root < "n";
    n < attributeVerb < "k" < "v";
    n < textVerb < "t";
    EXPECT_EQ(root.getXml(false), R"(<n k="v" >t</n>)");
}

TEST(ZelDataXmlNode, EveryAttributeIsFollowedByOneSpace)
{
    ZelDataXmlStream root;
    (root < "rdf:li") < attributeVerb < "a" < "1" < attributeVerb < "b" < "2";
    EXPECT_EQ(root.getXml(false), R"(<rdf:li a="1" b="2" ></rdf:li>)");
}

TEST(ZelDataXmlNode, OneExpressionAddsAttributesInOrder)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& node = root < "n";
    const std::string title = "Intro";
    const long long start = 1500;
    ZelDataXmlNode& returned =
        node < attributeVerb < "xmpDM:name" < title < attributeVerb < "xmpDM:startTime" < start;
    EXPECT_EQ(&returned, &node);
    EXPECT_EQ(root.getXml(false), R"(<n xmpDM:name="Intro" xmpDM:startTime="1500" ></n>)");
}

TEST(ZelDataXmlNode, ARepeatedAttributeNameIsAppendedAgain)
{
    ZelDataXmlStream root;
    (root < "n").attribute("k", "1").attribute("k", "2");
    EXPECT_EQ(root.getXml(false), R"(<n k="1" k="2" ></n>)");
}

TEST(ZelDataXmlNode, AnAttributeBeginsWithEmptyNameAndValue)
{
    ZelDataXmlStream root;
    (root < "n") < attributeVerb;
    EXPECT_EQ(root.getXml(false), R"(<n ="" ></n>)");
}

TEST(ZelDataXmlNode, TheAttributeVerbReturnsTheAttributeThatItAppended)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& node = root < "n";
    ZelDataXmlAttribute& first = node < attributeVerb;
    ZelDataXmlAttribute& second = node < attributeVerb;
    first < "first" < "1";
    second < "second" < "2";
    EXPECT_EQ(root.getXml(false), R"(<n first="1" second="2" ></n>)");
}

TEST(ZelDataXmlNode, TheAttributeVerbNeverReadsItsArgument)
{
    ZelDataXmlStream root;
    char bytes[] = "untouched";
    void* argument = bytes;
    (root < "n") < argument < "k" < "v";
    EXPECT_STREQ(bytes, "untouched");
    EXPECT_EQ(root.getXml(false), R"(<n k="v" ></n>)");
}

// Text

TEST(ZelDataXmlNode, SettingATextReturnsTheParent)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& a = root < "a";
    EXPECT_EQ(&(a < "b" < textVerb < "t"), &a);
    EXPECT_EQ(root.getXml(false), "<a><b>t</b></a>");
}

TEST(ZelDataXmlNode, AfterATextTheNextPathStartsOneLevelUp)
{
    ZelDataXmlStream root;
    root < "a/b" < textVerb < "1" < "c" < textVerb < "2";
    EXPECT_EQ(root.getXml(false), "<a><b>1</b><c>2</c></a>");
}

TEST(ZelDataXmlNode, TheTextVerbReturnsTheNodesOnlyText)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& a = root < "a";
    ZelDataXmlValue& text = a < textVerb;
    EXPECT_EQ(text.getValue(), "");
    text < "t";
    EXPECT_EQ(&(a < textVerb), &text);
    EXPECT_EQ(text.getValue(), "t");
}

TEST(ZelDataXmlNode, TheTextVerbNeverReadsItsArgument)
{
    ZelDataXmlStream root;
    char byte = 'x';
    void* pointer = &byte;
    (root < "a") < &pointer < "t";
    EXPECT_EQ(pointer, &byte);
    EXPECT_EQ(root.getXml(false), "<a>t</a>");
}

TEST(ZelDataXmlNode, TheTextVerbAloneLeavesTheTextAsItWas)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& a = root < "a";
    a.text("t");
    a < textVerb;
    EXPECT_EQ(root.getXml(false), "<a>t</a>");
}

TEST(ZelDataXmlNode, AssigningANumberMakesItTheTextAndReturnsTheParent)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& a = root < "a";
    ZelDataXmlNode& b = a < "b";
    b < textVerb;
    EXPECT_EQ(&(b = -5L), &a);
    EXPECT_EQ(root.getXml(false), "<a><b>-5</b></a>");
}

TEST(ZelDataXmlNode, AssigningTheExtremesWritesEachDigit)
{
    ZelDataXmlStream root;
    root.element("least") = LONG_MIN;
    root.element("most") = LONG_MAX;
    root.element("zero") = 0L;
    EXPECT_EQ(root.getXml(false), hasLongNumbers ? "<least>-9223372036854775808</least>"
                                                   "<most>9223372036854775807</most><zero>0</zero>"
                                                 : "<least>-2147483648</least>"
                                                   "<most>2147483647</most><zero>0</zero>");
}

TEST(ZelDataXmlNode, AssigningANumberBeforeTheTextVerbReturnsANodeOutsideTheTree)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& a = root < "a";
    ZelDataXmlNode& returned = (a = 7L);
    EXPECT_NE(&returned, &root);
    EXPECT_NE(&returned, &a);
    returned < "lost" < attributeVerb < "k" < "v";
    returned.text("lost");
    EXPECT_EQ(root.getXml(false), "<a>7</a>");
}

TEST(ZelDataXmlNode, SettingTheTextOfARootReturnsANodeOutsideTheTree)
{
    ZelDataXmlStream root;
    root < "a";
    ZelDataXmlNode& returned = root < textVerb < "t";
    EXPECT_NE(&returned, &root);
    returned < "lost";
    returned < groupVerb < "lost";
    EXPECT_EQ(root.getXml(false), "<a></a>");
}

TEST(ZelDataXmlNode, ARootWithoutAStreamWritesItsOwnText)
{
    ZelDataXmlNode root(nullptr);
    root.setName("a");
    root < textVerb < "t" < "lost";
    EXPECT_EQ(written(root), "<a>t</a>");
}

// Writing

TEST(ZelDataXmlNode, AnEmptyNodeIsAPairOfTags)
{
    const ZelDataXmlNode node(nullptr);
    EXPECT_EQ(written(node), "<></>");
}

TEST(ZelDataXmlNode, AChildMadeAfterTheTextDisplacesIt)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& a = root < "a";
    a.text("displaced");
    a < "b";
    EXPECT_EQ(root.getXml(false), "<a><b></b></a>");
}

TEST(ZelDataXmlNode, ATextSetAfterAChildWasMadeIsNotWritten)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& a = root < "a";
    a < "b";
    a.text("displaced");
    EXPECT_EQ(root.getXml(false), "<a><b></b></a>");
}

TEST(ZelDataXmlNode, NothingIsEscaped)
{
    ZelDataXmlStream root;
    (root < "<&>").attribute("'&\"", "<\"&'>").text("&<x/>\"'\x01\xFF");
    EXPECT_EQ(root.getXml(false), "<<&> '&\"=\"<\"&'>\" >&<x/>\"'\x01\xFF</<&>>");
}

TEST(ZelDataXmlNode, AmpersandsInATextAreWrittenAsTheyAre)
{
    ZelDataXmlStream root;
    (root < "a").text("&");
    EXPECT_EQ(root.getXml(false), "<a>&</a>");
}

TEST(ZelDataXmlNode, WritingAppends)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& b = root < "a/b";
    b.text("t");
    std::string out = "before ";
    b.write(out);
    EXPECT_EQ(out, "before <b>t</b>");
}

TEST(ZelDataXmlNode, WritingChangesNothing)
{
    ZelDataXmlStream root;
    (root < "a/b").attribute("k", "v").text("t");
    const std::string first = root.getXml(false);
    EXPECT_EQ(root.getXml(false), first);
    root < "a/c";
    EXPECT_EQ(root.getXml(false), R"(<a><b k="v" >t</b><c></c></a>)");
}

// Names

TEST(ZelDataXmlNode, ANameWithoutSlashNamesTheNodeAndReturnsIt)
{
    ZelDataXmlNode node(nullptr);
    EXPECT_EQ(&node.setName("a"), &node);
    EXPECT_EQ(written(node), "<a></a>");
    EXPECT_EQ(&node.setName(""), &node);
    EXPECT_EQ(written(node), "<></>");
}

TEST(ZelDataXmlNode, ANameWithSlashesBuildsTheRestBelow)
{
    ZelDataXmlNode node(nullptr);
    ZelDataXmlNode& c = node.setName("a/b/c");
    c.attribute("last", "yes");
    EXPECT_EQ(c.parent()->parent(), &node);
    EXPECT_EQ(written(node), R"(<a><b><c last="yes" ></c></b></a>)");
}

TEST(ZelDataXmlNode, ANameWithSlashesFollowsThePathRulesBelow)
{
    ZelDataXmlNode node(nullptr);
    node < "b";
    node.setName("a/b").attribute("last", "yes");
    EXPECT_EQ(written(node), R"(<a><b><b last="yes" ></b></b></a>)");
}

TEST(ZelDataXmlNode, ANameThatBeginsWithASlashIsEmpty)
{
    ZelDataXmlNode node(nullptr);
    node.setName("/a").attribute("last", "yes");
    EXPECT_EQ(written(node), R"(<><a last="yes" ></a></>)");
}

TEST(ZelDataXmlNode, ANameThatEndsWithASlashHasANamelessChild)
{
    ZelDataXmlNode node(nullptr);
    node.setName("a/").attribute("last", "yes");
    EXPECT_EQ(written(node), R"(<a>< last="yes" ></></a>)");
}

TEST(ZelDataXmlNode, ARenamedNodeIsStillFoundByItsFirstName)
{
    ZelDataXmlStream root;
    (root < "a").setName("z");
    root < "a/b";
    root < "z/c";
    EXPECT_EQ(root.getXml(false), "<z><b></b></z><z><c></c></z>");
}

// The named verbs

TEST(ZelDataXmlNode, ElementIsThePathVerb)
{
    ZelDataXmlStream root;
    root.element("a/b").attribute("last", "no");
    root.element("a/b").attribute("last", "yes");
    EXPECT_EQ(root.getXml(false), R"(<a><b last="no" ><b last="yes" ></b></b></a>)");
}

TEST(ZelDataXmlNode, NewGroupIsTheGroupVerb)
{
    ZelDataXmlStream root;
    root.element("a");
    EXPECT_EQ(&root.newGroup(), &root);
    root.element("a");
    EXPECT_EQ(root.getXml(false), "<a></a><a></a>");
}

TEST(ZelDataXmlNode, AttributeTakesTextsAndNumbersAndReturnsTheNode)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& n = root.element("n");
    ZelDataXmlNode& returned = n.attribute("text", "v")
                                   .attribute("string", std::string("w\0x", 3))
                                   .attribute("zero", 0)
                                   .attribute("least", LLONG_MIN)
                                   .attribute("most", LLONG_MAX);
    EXPECT_EQ(&returned, &n);
    EXPECT_EQ(root.getXml(false), std::string("<n text=\"v\" string=\"w\0x\" zero=\"0\" "
                                              "least=\"-9223372036854775808\" "
                                              "most=\"9223372036854775807\" ></n>",
                                              95));
}

TEST(ZelDataXmlNode, TextReplacesTheTextAndReturnsTheParent)
{
    ZelDataXmlStream root;
    ZelDataXmlNode& a = root.element("a");
    EXPECT_EQ(&a.element("b").text("old").element("c").text("<i>t</i>"), &a);
    EXPECT_EQ(&a.element("b/x").parent()->text("new"), &a);
    EXPECT_EQ(root.getXml(false), "<a><b><x></x></b><c><i>t</i></c></a>");
}

// Depth

TEST(ZelDataXmlNode, APathOfAMillionStepsIsBuiltWrittenAndDestroyed)
{
    constexpr std::size_t depth = 1000000;
    std::string path = "a";
    std::string expected;
    for (std::size_t step = 1; step < depth; ++step)
        path += "/a";
    for (std::size_t step = 0; step < depth; ++step)
        expected += "<a>";
    expected += "end";
    for (std::size_t step = 0; step < depth; ++step)
        expected += "</a>";

    ZelDataXmlStream root;
    root.element(path).text("end");
    EXPECT_TRUE(root.getXml(false) == expected);
    ZelDataXmlNode renamed(nullptr);
    renamed.setName(path).text("end");
    EXPECT_TRUE(written(renamed) == expected);
}

TEST(ZelDataXmlNode, AskingThousandsOfTimesForANameNestsAsDeep)
{
    constexpr int depth = 3000;
    ZelDataXmlStream root;
    std::string expected;
    for (int step = 0; step < depth; ++step) {
        root < "a";
        expected = "<a>" + expected + "</a>";
    }
    EXPECT_EQ(root.getXml(false), expected);
}

TEST(ZelDataXmlNode, ManyChildrenTakeMemoryInProportion)
{
    // Each piece of memory is larger than the one before: 18 of them are about 12 megabytes.
    ZelDataXmlStream root;
    const FailingAllocation watch;
    for (int child = 0; child < 5000; ++child)
        root.newGroup().element("a");
    EXPECT_LE(watch.count(), 18U);
}

TEST(ZelDataXmlNode, ATreeThatIsDeepAndWideIsDestroyed)
{
    ZelDataXmlStream root;
    ZelDataXmlNode* node = &root;
    for (int step = 0; step < 100000; ++step) {
        node->element("left");
        node->newGroup().element("left/below").text("t");
        node = &node->element("right").attribute("k", "v");
    }
    EXPECT_EQ(root.getXml(false).size(), 100000U * 64U);
}

} // namespace
} // namespace ZelInterchangeData
