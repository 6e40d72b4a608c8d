#include "terminal.h"

#include <algorithm>
#include <ostream>
#include <string>

namespace survey {

namespace {

void printParagraph(std::ostream& out, const std::string& text)
{
    if (!text.empty())
        out << wrapped(words(text), lineWidth, 0) << "\n\n";
}

/// The items behind their label, with commas between them.
void printList(std::ostream& out, const LabelledList& list, std::size_t labelWidth)
{
    std::vector<std::string> items = list.items;
    for (std::size_t i = 0; i + 1 < items.size(); ++i)
        items[i] += ',';
    const std::string label = "  " + list.label + std::string(labelWidth - widthOf(list.label) + 2, ' ');
    out << label << wrapped(items, lineWidth, widthOf(label)) << '\n';
}

void printHead(std::ostream& out, const Document& document)
{
    out << document.title << ": " << document.summary << "\n\n";
    std::size_t labelWidth = 0;
    for (const LabelledList& list : document.lists)
        labelWidth = std::max(labelWidth, widthOf(list.label));
    for (const LabelledList& list : document.lists)
        printList(out, list, labelWidth);
    out << '\n';
    for (const std::string& remark : document.remarks)
        printParagraph(out, remark);
}

} // namespace

void print(std::ostream& out, const Document& document)
{
    if (!document.title.empty())
        printHead(out, document);
    for (const Section& section : document.sections) {
        out << '\n';
        print(out, section);
    }
}

void print(std::ostream& out, const Section& section)
{
    out << section.title << '\n' << std::string(std::min(lineWidth, widthOf(section.title)), '=') << "\n\n";
    printParagraph(out, section.lead);
    for (const NamedTable& table : section.tables)
        table.table.print(out, lineWidth);
    printParagraph(out, section.note);
}

} // namespace survey
