/// \file
/// Watches the heartbeat of the GUI thread and writes down its stack when it has stood still for seconds.
#pragma once

#include "platform/module_list.h"
#include "platform/stack_sample.h"

#include <QStringList>
#include <functional>
#include <thread>

/// How often the heartbeat is looked at. It is also the period of the heartbeat itself.
constexpr int stallStepMs = 20;
/// A sample is taken at this many steps without a beat, and at each further multiple (4 s, 8 s, …).
constexpr int stallSteps = 200;

/// Counts steps without a heartbeat.
class StallCount
{
public:
    explicit StallCount(unsigned long heartbeat)
        : m_heartbeat(heartbeat)
    {
    }

    /// To be called every step. \return the length of the stall in milliseconds when a sample is due, else 0
    int step(unsigned long heartbeat);

private:
    unsigned long m_heartbeat;
    int m_steps = 0;
};

/// Finds the readable name of the function around an address, empty when unknown.
using FunctionName = std::function<QString(const LoadedModule &module, std::uintptr_t address)>;

/// The lines of one stall: the length; where the thread stands; its return addresses; and once more, in a
/// form that is easily searched for, those of the program itself. A function's name follows its address where
/// it is known. \param sample without addresses gives the first line only \param modules by rising address
QStringList stallBlock(int stallMs, const StackSample &sample, const std::vector<LoadedModule> &modules,
                       const FunctionName &functionName);

/// \param stated the value of KELP_GUI_STALL_LOG, empty for the default in \p tempFolder
QString stallLogPath(const QString &stated, const QString &tempFolder);

/// What the loop stands on; all are called on the loop's thread.
struct StallSamplerHooks
{
    std::function<unsigned long()> heartbeat;
    std::function<bool()> ended;                    ///< the event loop has been left
    std::function<void()> waitStep;                 ///< returns after stallStepMs
    std::function<QStringList(int stallMs)> sample; ///< the lines of one block
    std::function<void(const QStringList &)> write;
};

/// Runs until \p hooks says that the event loop was left.
void runStallSampler(const StallSamplerHooks &hooks);

/// Samples \p thread now; a block with the first line alone where that cannot be done.
QStringList sampleStall(SystemThreadId thread, int stallMs);

/// Appends \p lines to \p path in UTF-8, opened and closed here; a file that cannot be opened is passed over.
void appendStallBlock(const QString &path, const QStringList &lines);

/// Starts the watch over \p thread, writing to \p path. Throws std::system_error when no thread can be made.
/// \param heartbeat, ended are called from the new thread, which ends within stallStepMs of \p ended becoming
/// true (or, when it is taking a sample just then, after that)
std::thread startStallSampler(SystemThreadId thread, std::function<unsigned long()> heartbeat,
                              std::function<bool()> ended, const QString &path);
