// A digest for each function: what it returns and writes on inputs that are the same everywhere.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace vecmat::digest {

/// A function that has a digest. Overloads are told apart by the types of their parameters.
struct Subject
{
    std::string name;
    std::function<std::uint64_t()> digest;
};

/// All functions that take arrays.
std::vector<Subject> flatSubjects();

/// The functions over tables that no function over arrays has inside.
std::vector<Subject> tableSubjects();

struct Digest
{
    std::string name;
    std::uint64_t value;
};

/// What is settled, in the order of digests.inc.
std::span<const Digest> settledDigests();

} // namespace vecmat::digest
