#include "measurerun.h"

#include <QCoreApplication>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace {

std::atomic<bool> isInterrupted { false };
std::atomic<int> interruption { 0 }; ///< number of the signal

/// The first signal ends the run behind a whole line, a second one at once.
void interrupt(int signal)
{
    isInterrupted = true;
    interruption = signal;
    std::signal(signal, SIG_DFL);
}

void watchSignals()
{
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN); // told by the write that fails
#endif
}

/// Whether the option is there, before "--" ends the options.
bool hasArgument(int argc, char* argv[], const char* wanted)
{
    for (int i = 1; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        if (std::strcmp(argv[i], wanted) == 0) {
            return true;
        }
    }
    return false;
}

/// Writes to standard output; a failure is told unless the reader has gone.
bool writeOutput(const QByteArray& bytes, Messages& messages)
{
    if (std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout) == size_t(bytes.size())) {
        return true;
    }
    if (errno != EPIPE) {
        messages.tell("standard output: " + QString::fromLocal8Bit(std::strerror(errno)));
    }
    return false;
}

int measure(const QStringList& arguments)
{
    Messages messages;
    const MeasureOptions options = parsedOptions(arguments);
    if (!options.error.isEmpty()) {
        messages.tell(options.error);
        return 2;
    }
    std::setvbuf(stdout, nullptr, _IONBF, 0); // one write for whatever is written at once
    MeasureRun run(
        options, [&messages](const QByteArray& bytes) { return writeOutput(bytes, messages); },
        isInterrupted, messages);
    return run.run();
}

int printed(const QString& text)
{
    const bool isPrinted
        = std::fputs(qUtf8Printable(text), stdout) >= 0 && std::fflush(stdout) == 0;
    return isPrinted ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    if (hasArgument(argc, argv, "--help")) {
        return printed(measureHelp());
    }
    if (hasArgument(argc, argv, "--version")) {
        return printed("vkmeasure " VKMEASURE_VERSION "\n");
    }
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("vkmeasure");
    QCoreApplication::setApplicationVersion(VKMEASURE_VERSION);
    watchSignals();
    const int status = measure(QCoreApplication::arguments().mid(1));
    if (interruption != 0) {
        std::raise(interruption); // tells the caller, such as a shell's loop
    }
    return status;
}
