#include "contest.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <limits>

namespace vecmat::bench {

namespace {

void writeCells(const std::filesystem::path& file, const Cells& cells)
{
    std::ofstream stream(file, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(cells.data()),
                 static_cast<std::streamsize>(cells.size() * sizeof(double)));
}

/// The texts of the workloads are ASCII.
void writeTexts(const std::filesystem::path& file, const Texts& texts)
{
    std::ofstream stream(file);
    for (const std::wstring& text : texts) {
        std::transform(text.begin(), text.end(), std::ostreambuf_iterator<char>(stream),
                       [](wchar_t character) { return static_cast<char>(character); });
        stream << '\n';
    }
}

} // namespace

std::size_t Contest::operandBytes() const
{
    std::size_t bytes = 0;
    for (const Cells* cells : outputs_)
        bytes += cells->size() * sizeof(double);
    for (const auto& [name, cells] : sharedCells_)
        bytes += cells->size() * sizeof(double);
    for (const auto& [name, texts] : sharedTexts_)
        for (const std::wstring& text : *texts)
            bytes += sizeof(void*) + 4 + 2 * (text.size() + 1);
    return bytes;
}

Cells Contest::resultOf(const Contender& contender) const
{
    for (Cells* output : outputs_)
        std::fill(output->begin(), output->end(), std::numeric_limits<double>::quiet_NaN());
    restore();
    contender.run();
    if (contender.result)
        return contender.result();
    Cells all;
    for (const Cells* output : outputs_)
        all.insert(all.end(), output->begin(), output->end());
    return all;
}

void Contest::write(const std::string& directory, int size) const
{
    const std::filesystem::path folder(directory);
    std::filesystem::create_directories(folder);
    writeCells(folder / "ours", resultOf(contenders_.front()));
    restore();
    for (const auto& [name, cells] : sharedCells_)
        writeCells(folder / name, *cells);
    writeCells(folder / "size", {static_cast<double>(size)});
    for (const auto& [name, texts] : sharedTexts_)
        writeTexts(folder / name, *texts);
}

double secondsOfThread()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

Suite allWorkloads()
{
    Suite suite;
    for (const auto add : {addSorting, addProducts, addMoments, addQuantiles, addCovariance, addEigenvalues,
                           addSingularValues, addFactorisations, addLeastSquares, addGrouping, addCategories,
                           addMissing, addSampling, addStrings, addCallersTexts, addSmallInputs, addMathematics})
        add(suite);
    return suite;
}

} // namespace vecmat::bench
