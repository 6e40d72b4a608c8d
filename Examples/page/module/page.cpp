// The survey for a page: JavaScript calls it with the words of a command line, and is told each part as it is ready.
#include "call.h"
#include "data_files.h"
#include "input_error.h"
#include "read_table.h"
#include "survey.h"

#include <emscripten/bind.h>
#include <emscripten/val.h>

#include <algorithm>
#include <exception>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace {

using emscripten::val;

/// The items as an array, each as a function has it.
template <class Items, class Made>
val listOf(const Items& items, const Made& made)
{
    val list = val::array();
    int place = 0;
    for (const auto& item : items)
        list.set(place++, made(item));
    return list;
}

val textOf(const std::string& text)
{
    return val(text);
}

val textsOf(const std::vector<std::string>& texts)
{
    return listOf(texts, textOf);
}

val textsOfAll(const std::vector<std::vector<std::string>>& records)
{
    return listOf(records, textsOf);
}

const char* nameOf(survey::Align align)
{
    switch (align) {
    case survey::Align::left:
        return "left";
    case survey::Align::right:
        return "right";
    case survey::Align::point:
        break;
    }
    return "point";
}

val columnOf(const survey::TextTable::Column& column)
{
    val object = val::object();
    object.set("heading", survey::onOneLine(column.heading));
    object.set("align", std::string(nameOf(column.align)));
    return object;
}

val tableOf(const survey::NamedTable& named)
{
    std::vector<std::vector<std::string>> rows = named.table.rows();
    std::erase_if(rows, [](const auto& row) { return row.empty(); }); // gaps
    val object = val::object();
    object.set("name", named.name);
    object.set("keyColumns", static_cast<int>(named.table.keyColumns()));
    object.set("columns", listOf(named.table.columns(), columnOf));
    object.set("rows", textsOfAll(rows));
    object.set("whole", named.whole ? static_cast<int>(named.whole->records.size()) - 1 : 0);
    return object;
}

val pictureOf(const survey::Picture& picture)
{
    val data = val::object();
    for (const survey::DataTable& table : picture.data)
        data.set(table.name, textsOfAll(table.records));
    val object = val::object();
    object.set("name", picture.name);
    object.set("data", data);
    return object;
}

val sectionOf(const survey::Section& section)
{
    val object = val::object();
    object.set("name", section.name);
    object.set("title", section.title);
    object.set("lead", section.lead);
    object.set("note", section.note);
    object.set("tables", listOf(section.tables, tableOf));
    object.set("pictures", listOf(section.pictures, pictureOf));
    return object;
}

val labelledListOf(const survey::LabelledList& list)
{
    val object = val::object();
    object.set("label", list.label);
    object.set("items", textsOf(list.items));
    return object;
}

val partOf(const survey::Document& document)
{
    val object = val::object();
    object.set("title", document.title);
    object.set("summary", document.summary);
    object.set("lists", listOf(document.lists, labelledListOf));
    object.set("remarks", textsOf(document.remarks));
    object.set("sections", listOf(document.sections, sectionOf));
    return object;
}

survey::Call callOf(const val& words)
{
    std::vector<std::string> texts = {"survey"};
    for (int i = 0; i < words["length"].as<int>(); ++i)
        texts.push_back(words[i].as<std::string>());
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return survey::callOf(static_cast<int>(texts.size()), pointers.data());
}

/// What `run` returns, or an object with what went wrong as `error`. Nothing is thrown into JavaScript.
template <class Run>
val guarded(const Run& run)
{
    val failure = val::object();
    try {
        return run();
    } catch (const std::bad_alloc&) {
        failure.set("error", std::string("the table takes more memory than the browser gives a page"));
    } catch (const std::exception& error) { // InputError, CallError, OutputError
        failure.set("error", std::string(error.what()));
    }
    return failure;
}

survey::Progress toldTo(const val& progress)
{
    return [&progress](const std::string& what, double share) { progress(what, std::clamp(share, 0.0, 1.0)); };
}

const char* nameOf(survey::Kind kind)
{
    switch (kind) {
    case survey::Kind::numeric:
        return "numeric";
    case survey::Kind::text:
        return "text";
    case survey::Kind::empty:
        break;
    }
    return "empty";
}

/// The columns of the table, each with its kind and, of a text column, how many texts it has.
val look(const val& words, const val& progress)
{
    return guarded([&] {
        const survey::Call call = callOf(words);
        const survey::Table table = survey::readTable(call.file, call.reading, toldTo(progress));
        val object = val::object();
        object.set("rows", table.rows);
        object.set("columns", listOf(table.columns, [](const survey::Column& column) {
                       val each = val::object();
                       each.set("name", column.name);
                       each.set("kind", std::string(nameOf(column.kind)));
                       each.set("groups", column.kind == survey::Kind::text
                                              ? static_cast<int>(survey::groupsBy(column).size())
                                              : 0);
                       return each;
                   }));
        return object;
    });
}

/// `take` gets each part, `progress` what is being done and which share of it is done.
val run(const val& words, const val& take, const val& progress)
{
    return guarded([&] {
        const survey::Call call = callOf(words);
        const survey::Progress tell = toldTo(progress);
        const survey::Table table = survey::readTable(call.file, call.reading, tell);
        const auto& grouping = call.reading.grouping;
        const survey::Subject subject = survey::subjectOf(table, grouping ? table.named(*grouping) : nullptr);
        std::optional<survey::DataFiles> files;
        if (call.report)
            files.emplace(*call.report);
        const auto takePart = [&](const survey::Document& part) {
            take(partOf(part));
            if (files)
                files->add(part);
        };
        survey::survey(subject, call.settings, takePart, tell);
        if (files)
            files->finish();
        return val::object();
    });
}

} // namespace

EMSCRIPTEN_BINDINGS(survey)
{
    emscripten::function("look", &look);
    emscripten::function("survey", &run);
}
