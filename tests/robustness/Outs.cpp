#include "robustness/Outs.h"

#include "robustness/Contents.h"
#include "support/Checks.h"

#include <sstream>

namespace ZelInterchangeData {

namespace {

template <class Interface>
void describe(std::ostream& out, const HandedOut<Interface>& handed)
{
    out << (handed.object == nullptr ? "nothing" : contentsOf(*handed.object)) << '\n';
}

template <class Interface>
void describe(std::ostream& out, const AllHandedOut<Interface>& handed)
{
    out << handed.objects.size() << " objects\n";
    for (const Interface* object : handed.objects)
        out << contentsOf(*object) << '\n';
}

void describe(std::ostream& out, const std::vector<ZelDataFinding>& findings)
{
    out << findings.size() << " findings\n";
    for (const ZelDataFinding& finding : findings)
        out << ZelInterchangeData::describe(finding) << '\n';
}

} // namespace

Outs::Outs()
    : headerTarget(make(&ZelDataUtilities::createHeaderData)),
      captionsTarget(make(&ZelDataUtilities::createCaptionData)),
      tocTarget(make(&ZelDataUtilities::createTocData)),
      screenTextTarget(make(&ZelDataUtilities::createScreenTextData))
{
    file.fill("what was in the file before");
}

std::string Outs::described() const
{
    std::ostringstream out;
    out << dateMasked(text) << '\n' << shortText << '\n' << id << '\n';
    for (const std::string& value : list)
        out << value << '|';
    out << flag << ' ' << number << ' ' << time << ' ' << offset << ' ' << alignment << ' ' << red
        << ' ' << green << ' ' << blue << '\n';
    const auto describeAll = [&](const auto&... handed) { (describe(out, handed), ...); };
    describeAll(header, captions, toc, screenText, caption, entry, screenTextItem);
    describeAll(headerFormatter, captionFormatter, tocFormatter, screenTextFormatter, document);
    describeAll(captionItems, entries, screenTextItems, findings);
    out << contentsOf(*headerTarget) << contentsOf(*captionsTarget) << contentsOf(*tocTarget)
        << contentsOf(*screenTextTarget) << dateMasked(file.bytes());
    return out.str();
}

} // namespace ZelInterchangeData
