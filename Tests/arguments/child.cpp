#include "arguments/child.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace vecmat::test {

namespace {

constexpr unsigned patienceSeconds = 120;

// Of the one call that a child makes at a time. The handler allocates memory although the process is broken: it is
// about to end anyhow, and a report that gets stuck is ended by the alarm.
const flat::Arguments* watched = nullptr;
int reportTo = -1;

void send(const std::string& text)
{
    for (std::size_t sent = 0; sent < text.size();) {
        const ssize_t now = write(reportTo, text.data() + sent, text.size() - sent);
        if (now <= 0)
            return;
        sent += static_cast<std::size_t>(now);
    }
}

std::string place(const flat::Block& block, const void* address)
{
    const std::ptrdiff_t offset = block.offsetOf(address);
    const char* const where = offset < 0                                            ? "before the start of "
                              : offset >= static_cast<std::ptrdiff_t>(block.size()) ? "beyond the end of "
                                                                                    : "written, though only read: ";
    return where + block.label() + ", at byte " + std::to_string(offset) + " of " + std::to_string(block.size());
}

void onFault(int signal, siginfo_t* info, void* /*context*/)
{
    std::string text = strsignal(signal);
    if (watched != nullptr) {
        const flat::Block* const block = watched->blockNear(info->si_addr);
        text = std::string(watched->call().name) + ": " +
               (block != nullptr ? place(*block, info->si_addr) : text + " in no array of the call") + "; in " +
               watched->text();
    }
    send(text);
    _exit(1);
}

void reportFaults()
{
    static std::array<char, 1 << 16> stack;
    stack_t alternative{};
    alternative.ss_sp = stack.data();
    alternative.ss_size = stack.size();
    sigaltstack(&alternative, nullptr);
    struct sigaction action
    {
    };
    action.sa_sigaction = onFault;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM})
        sigaction(signal, &action, nullptr);
    alarm(patienceSeconds);
}

std::string readAll(int from)
{
    std::string text;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = read(from, buffer.data(), buffer.size())) > 0;)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    return text;
}

} // namespace

Watched::Watched(const flat::Arguments& arguments)
{
    watched = &arguments;
}

Watched::~Watched()
{
    watched = nullptr;
}

std::string inChild(const std::function<std::string()>& work)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        return "no pipe";
    const pid_t child = fork();
    if (child < 0)
        return "no process";
    if (child == 0) {
        close(ends[0]);
        reportTo = ends[1];
        reportFaults();
        try {
            send(work());
        } catch (const std::exception& error) {
            send(std::string(error.what()) + (watched != nullptr ? " in " + watched->text() : ""));
        }
        _exit(0);
    }
    close(ends[1]);
    std::string report = readAll(ends[0]);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (report.empty() && status != 0)
        report = "the child ended with the status " + std::to_string(status);
    return report;
}

} // namespace vecmat::test
