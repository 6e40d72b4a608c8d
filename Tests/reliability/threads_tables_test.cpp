// The functions over tables that no flat function has inside, from four threads at once: each gives its settled digest.
// Built for the thread sanitizer alone (tools/test threads), which sees what they share.
#include "digests.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <thread>
#include <vector>

namespace vecmat::test {

namespace {

constexpr std::size_t threadCount = 4;

/// A digest of each function; `first` says which comes first.
std::vector<std::uint64_t> digestsOf(const std::vector<digest::Subject>& subjects, std::size_t first)
{
    std::vector<std::uint64_t> digests(subjects.size(), 0);
    for (std::size_t k = 0; k < subjects.size(); ++k) {
        const std::size_t place = (first + k) % subjects.size();
        digests[place] = subjects[place].digest();
    }
    return digests;
}

std::map<std::string_view, std::uint64_t> settled()
{
    std::map<std::string_view, std::uint64_t> digests;
    for (const digest::Digest& each : digest::settledDigests())
        digests.emplace(each.name, each.value);
    return digests;
}

} // namespace

TEST(Threads, FunctionsOverTablesAtTheSameTime)
{
    const std::map<std::string_view, std::uint64_t> expected = settled();
    const std::vector<digest::Subject> subjects = digest::tableSubjects();
    ASSERT_GT(subjects.size(), 300u);
    std::array<std::vector<std::uint64_t>, threadCount> digests;
    std::array<std::thread, threadCount> threads;
    for (std::size_t k = 0; k < threadCount; ++k)
        threads[k] = std::thread([&, k] { digests[k] = digestsOf(subjects, k * subjects.size() / threadCount); });
    for (std::thread& thread : threads)
        thread.join();
    for (const auto& each : digests)
        for (std::size_t k = 0; k < subjects.size(); ++k)
            EXPECT_EQ(each[k], expected.at(subjects[k].name)) << subjects[k].name;
}

} // namespace vecmat::test
