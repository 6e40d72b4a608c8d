// A guarded call lets no exception out, whichever allocation fails: it gives a status, and the thread can ask why.
#include "VecMatGuarded.h"

#include "CompanionRuntime/CompanionRuntime.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/safearrays.h"
#include "support/strings.h"

#include <gmock/gmock.h>

#include <climits>
#include <cstring>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

// Too long for a string's own storage, so that converting it allocates.
const std::wstring longText = L"a text that does not fit into the string itself";

/// Lets each allocation of a guarded call fail in turn. The call must give the status of exhausted memory, with a text
/// that names the function, and no exception.
int forEachGuardedFailure(const char* function, const std::function<int()>& call)
{
    bool asExpected = true;
    const int failures = forEachFailingAllocation(
        [&] {
            const int status = call();
            const bool struck = allocationState().threw;
            // no allocation here: the next one might be the one to fail
            const char* const error = vecmat_guarded_error();
            const std::size_t length = std::strlen(function);
            asExpected = asExpected && status == (struck ? VECMAT_CALL_OUT_OF_MEMORY : VECMAT_CALL_DONE) &&
                         (struck ? std::strncmp(error, function, length) == 0 &&
                                       std::strcmp(error + length, ": out of memory") == 0
                                 : *error == '\0');
        },
        Failure::mayBeCaught);
    EXPECT_TRUE(asExpected) << function << ": " << vecmat_guarded_error();
    return failures;
}

TEST(GuardedCalls, ReturnWhatTheFunctionReturns)
{
    double v[] = {4, VECMAT_MISSING, 5, 90};
    double mean = 0;
    EXPECT_EQ(vecmat_guarded_VB_V_Mean2(v, 4, &mean), VECMAT_CALL_DONE);
    EXPECT_THAT(mean, SameBits(VB_V_Mean2(v, 4)));
    EXPECT_STREQ(vecmat_guarded_error(), "");
    EXPECT_EQ(vecmat_guarded_VB_V_Mean2(v, 4, nullptr), VECMAT_CALL_DONE) << "a result need not be wanted";
    short isMissing = 0;
    EXPECT_EQ(vecmat_guarded_VB_IsMissingValueDbl(v[1], &isMissing), VECMAT_CALL_DONE);
    EXPECT_EQ(isMissing, -1);
}

// The tables of small calls lie on the stack: these do not fit there.
constexpr int manyCells = 20'000;

TEST(GuardedCalls, OverTablesLetNoFailureOut)
{
    std::vector<double> v(manyCells, 1.0), weights(manyCells, 1.0);
    std::vector<short> mask(manyCells, 0);
    EXPECT_GT(forEachGuardedFailure("VB_V_Quantile",
                                    [&] { return vecmat_guarded_VB_V_Quantile(v.data(), manyCells, 0.5, nullptr); }),
              0);
    EXPECT_GT(forEachGuardedFailure("VB_V_QuantileMW",
                                    [&] {
                                        return vecmat_guarded_VB_V_QuantileMW(v.data(), manyCells, mask.data(),
                                                                              weights.data(), 0.5, nullptr);
                                    }),
              0);
}

TEST(GuardedCalls, OverStringsLetNoFailureOut)
{
    BstrArray labels({longText, L"b", longText});
    wchar_t* turned[3] = {};
    EXPECT_GT(forEachGuardedFailure("VB_M_TransposeStr",
                                    [&] {
                                        const int status = vecmat_guarded_VB_M_TransposeStr(labels, 3, 1, turned);
                                        for (wchar_t*& text : turned) {
                                            SysFreeString2(text);
                                            text = nullptr;
                                        }
                                        return status;
                                    }),
              0);
}

TEST(GuardedCalls, ThatMakeAStringLeaveTheResultAloneWhereTheyFail)
{
    const CallersText letters(L"AZ");
    wchar_t untouched = L'x';
    EXPECT_GT(forEachGuardedFailure("Increase1Col",
                                    [&] {
                                        wchar_t* made = &untouched;
                                        const int status = vecmat_guarded_Increase1Col(letters, &made);
                                        if (status == VECMAT_CALL_DONE)
                                            SysFreeString2(made);
                                        else if (made != &untouched)
                                            return INT_MIN;
                                        return status;
                                    }),
              0);
}

TEST(GuardedCalls, OverColumnsLetNoFailureOut)
{
    ArrayOfColumns source = numberColumns(2, 2, {1, 2, 3, 4}), target = numberColumns(2, 2, {0, 0, 0, 0});
    EXPECT_GT(forEachGuardedFailure("VB_M_TransposeSPV",
                                    [&] { return vecmat_guarded_VB_M_TransposeSPV(source, 2, 2, target); }),
              0);
    EXPECT_THAT(target.numbers(), SameBits({1, 3, 2, 4}));
}

TEST(GuardedCalls, KeepTheErrorToTheirThread)
{
    std::vector<double> v(manyCells, 1.0);
    std::vector<short> mask(manyCells, 0);
    const auto call = [&] { vecmat_guarded_VB_V_QuantileMW(v.data(), manyCells, mask.data(), v.data(), 0.5, nullptr); };
    EXPECT_EQ(runWithFailure(call, 1), Ending::ranThrough);
    ASSERT_TRUE(allocationState().threw);
    EXPECT_STREQ(vecmat_guarded_error(), "VB_V_QuantileMW: out of memory");
    std::string elsewhere = "not asked";
    std::thread([&] { elsewhere = vecmat_guarded_error(); }).join();
    EXPECT_EQ(elsewhere, "");
    EXPECT_STREQ(vecmat_guarded_error(), "VB_V_QuantileMW: out of memory") << "still that of this thread";
    vecmat_guarded_VB_V_Mean2(v.data(), 2, nullptr);
    EXPECT_STREQ(vecmat_guarded_error(), "") << "a call that is done forgets it";
}

} // namespace
} // namespace vecmat::test
