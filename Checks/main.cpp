// vecmat-digest: does this machine give the settled bits?
#include "digests.h"

#include <cinttypes>
#include <cstdio>
#include <cstring>

#include <map>
#include <stdexcept>
#include <string>

namespace {

using vecmat::digest::Digest;
using vecmat::digest::Subject;

constexpr const char* usage = "Usage: vecmat-digest [NAME...]         compares all functions, or those named\n"
                              "       vecmat-digest --list [NAME...]  prints their digests\n"
                              "       vecmat-digest --write FILE      writes all digests to digests.inc\n";

std::vector<Subject> allSubjects()
{
    std::vector<Subject> subjects = vecmat::digest::flatSubjects();
    for (Subject& subject : vecmat::digest::tableSubjects())
        subjects.push_back(std::move(subject));
    return subjects;
}

std::vector<Subject> subjectsNamed(const std::vector<std::string>& names)
{
    std::vector<Subject> all = allSubjects();
    if (names.empty())
        return all;
    std::vector<Subject> subjects;
    for (const std::string& name : names) {
        const std::size_t before = subjects.size();
        for (const Subject& subject : all)
            if (subject.name == name || subject.name.starts_with(name + "("))
                subjects.push_back(subject);
        if (subjects.size() == before)
            throw std::invalid_argument("There is no digest of " + name);
    }
    return subjects;
}

void print(std::FILE* file, const Subject& subject)
{
    std::fprintf(file, "{\"%s\", 0x%016" PRIx64 "},\n", subject.name.c_str(), subject.digest());
}

int list(const std::vector<Subject>& subjects)
{
    for (const Subject& subject : subjects)
        print(stdout, subject);
    return 0;
}

int write(const char* path)
{
    std::FILE* const file = std::fopen(path, "w");
    if (file == nullptr) {
        std::perror(path);
        return 2;
    }
    for (const Subject& subject : allSubjects())
        print(file, subject);
    return std::fclose(file) == 0 ? 0 : 2;
}

int compare(const std::vector<Subject>& subjects, bool isComplete)
{
    std::map<std::string, std::uint64_t> settled;
    for (const Digest& digest : vecmat::digest::settledDigests())
        settled.emplace(digest.name, digest.value);
    std::size_t wrong = 0;
    for (const Subject& subject : subjects) {
        const std::uint64_t found = subject.digest();
        const auto expected = settled.find(subject.name);
        if (expected == settled.end()) {
            std::printf("%s has no settled digest\n", subject.name.c_str());
            ++wrong;
            continue;
        }
        if (expected->second != found) {
            std::printf("%s differs: %016" PRIx64 ", settled is %016" PRIx64 "\n", subject.name.c_str(), found,
                        expected->second);
            ++wrong;
        }
        settled.erase(expected);
    }
    if (isComplete)
        for (const auto& [name, value] : settled) {
            std::printf("%s has a settled digest and is not called\n", name.c_str());
            ++wrong;
        }
    if (wrong > 0)
        std::printf("DIFFERENT: %zu of %zu functions\n", wrong, subjects.size());
    else
        std::printf("OK: %zu function%s the settled bits\n", subjects.size(),
                    subjects.size() == 1 ? " gives" : "s give");
    return wrong > 0 ? 1 : 0;
}

} // namespace

int main(int argc, char** argv)
try {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (!words.empty() && words[0] == "--write" && words.size() == 2)
        return write(words[1].c_str());
    if (!words.empty() && words[0] == "--list")
        return list(subjectsNamed({words.begin() + 1, words.end()}));
    if (!words.empty() && words[0].starts_with("-")) {
        std::fputs(usage, words[0] == "--help" ? stdout : stderr);
        return words[0] == "--help" ? 0 : 2;
    }
    return compare(subjectsNamed(words), words.empty());
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
