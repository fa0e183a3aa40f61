#include "app/stall_sampler.h"

#include "platform/symbol_names.h"

#include <QFile>
#include <chrono>

using namespace Qt::StringLiterals;

namespace {

struct Place
{
    QString module; ///< "?" where no module is around the address
    QString offset; ///< hexadecimal, from the module's base
    QString name;   ///< with a leading blank, or empty
    bool ownProgram = false;
};

/// \param searched the address whose function is meant: a return address belongs to the call before it
Place placeOf(std::uintptr_t address, std::uintptr_t searched, const std::vector<LoadedModule> &modules,
              const FunctionName &functionName)
{
    const LoadedModule *module = moduleAt(modules, address);
    Place place;
    place.module = module != nullptr ? module->name : u"?"_s;
    place.offset = QString::number(address - (module != nullptr ? module->base : 0), 16);
    place.ownProgram = module != nullptr && module->ownProgram;
    const QString name = module != nullptr && functionName ? functionName(*module, searched) : QString();
    if (!name.isEmpty())
        place.name = u' ' + name;
    return place;
}

} // namespace

int StallCount::step(unsigned long heartbeat)
{
    if (heartbeat != m_heartbeat) {
        m_heartbeat = heartbeat;
        m_steps = 0;
        return 0;
    }
    ++m_steps;
    return m_steps % stallSteps == 0 ? m_steps * stallStepMs : 0;
}

QStringList stallBlock(int stallMs, const StackSample &sample, const std::vector<LoadedModule> &modules,
                       const FunctionName &functionName)
{
    QStringList lines{u"STALLSAMPLE stall_ms="_s + QString::number(stallMs)};
    QStringList ours;
    for (int index = 0; index < sample.count; ++index) {
        const std::uintptr_t address = sample.addresses[static_cast<std::size_t>(index)];
        const Place place = placeOf(address, index == 0 ? address : address - 1, modules, functionName);
        const QString title = index == 0 ? u" ip"_s : u" ret"_s + QString::number(index - 1);
        lines += title + u'=' + place.module + u"+0x"_s + place.offset + place.name;
        if (place.ownProgram)
            ours += u" ours"_s + QString::number(ours.size()) + u"=+0x"_s + place.offset + place.name;
    }
    return lines + ours;
}

QString stallLogPath(const QString &stated, const QString &tempFolder)
{
    return stated.isEmpty() ? tempFolder + u"/kelp-stall-sample.log"_s : stated;
}

void runStallSampler(const StallSamplerHooks &hooks)
{
    StallCount count(hooks.heartbeat());
    while (!hooks.ended()) {
        hooks.waitStep();
        const int stallMs = count.step(hooks.heartbeat());
        if (stallMs > 0)
            hooks.write(hooks.sample(stallMs));
    }
}

QStringList sampleStall(SystemThreadId thread, int stallMs)
{
    // The modules are listed at each sample, since libraries come and go: the engine's do with the first
    // session.
    StackSample sample;
    if (sampleStack(thread, sample) != StackSampleResult::Taken)
        sample.count = 0;
    return stallBlock(stallMs, sample, loadedModules(), functionNameAt);
}

void appendStallBlock(const QString &path, const QStringList &lines)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write((lines.join(u'\n') + u'\n').toUtf8());
}

std::thread startStallSampler(SystemThreadId thread, std::function<unsigned long()> heartbeat,
                              std::function<bool()> ended, const QString &path)
{
    StallSamplerHooks hooks;
    hooks.heartbeat = std::move(heartbeat);
    hooks.ended = std::move(ended);
    hooks.waitStep = [] { std::this_thread::sleep_for(std::chrono::milliseconds(stallStepMs)); };
    hooks.sample = [thread](int stallMs) { return sampleStall(thread, stallMs); };
    hooks.write = [path](const QStringList &lines) { appendStallBlock(path, lines); };
    return std::thread([hooks] { runStallSampler(hooks); });
}
