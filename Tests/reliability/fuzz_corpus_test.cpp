// The cases of the fuzzers' corpus again, in every build: what a fuzzer has found once stays found. See Fuzz/README.md.
#include "flat_call_case.h"
#include "survey_case.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace vecmat::test {
namespace {

const std::filesystem::path corpus = FUZZ_CORPUS;

std::vector<unsigned char> bytesOf(const std::string& digits)
{
    std::vector<unsigned char> bytes;
    for (std::size_t k = 0; k + 1 < digits.size(); k += 2)
        bytes.push_back(static_cast<unsigned char>(std::stoi(digits.substr(k, 2), nullptr, 16)));
    return bytes;
}

struct Case
{
    std::string function;
    std::vector<unsigned char> bytes;
};

/// A line each: the function, and its bytes in hexadecimal digits.
std::vector<Case> casesOfCalls()
{
    std::vector<Case> cases;
    std::ifstream file(corpus / "flat_calls.txt");
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#')
            continue;
        const std::size_t blank = line.find(' ');
        cases.push_back({line.substr(0, blank),
                         blank == std::string::npos ? std::vector<unsigned char>() : bytesOf(line.substr(blank + 1))});
    }
    return cases;
}

} // namespace

TEST(FuzzCorpus, CallsOfFlatFunctions)
{
    std::set<std::string> functions;
    for (const Case& each : casesOfCalls()) {
        SCOPED_TRACE(each.function);
        const flat::Call* const call = flat::findCall(each.function);
        ASSERT_NE(call, nullptr);
        EXPECT_NO_THROW(fuzz::runFlatCall(*call, each.bytes));
        functions.insert(each.function);
    }
    EXPECT_EQ(functions.size(), flat::allCalls().size()) << "functions without a case";
}

TEST(FuzzCorpus, FilesOfTheSurvey)
{
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(corpus / "survey")) {
        SCOPED_TRACE(entry.path());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<unsigned char> bytes((std::istreambuf_iterator<char>(file)), {});
        EXPECT_NO_THROW(survey::fuzz::readCase(bytes));
        ++count;
    }
    EXPECT_GE(count, 20);
}

} // namespace vecmat::test
