#include "player_core/output/pcm_chain.h"

#include <algorithm>
#include <array>

namespace kelp_core {
namespace {

enum class Stage
{
    hardware,
    null,
    file,
    hooks,
};

struct StageName
{
    std::string_view text;
    Stage stage;
};

// As ALSA prints them; a null device has nothing behind its name.
constexpr std::array<StageName, 4> harmlessStages{{{"Hardware PCM card ", Stage::hardware},
                                                   {"Null PCM", Stage::null},
                                                   {"File PCM (", Stage::file},
                                                   {"Hooks PCM", Stage::hooks}}};
// Stages that change samples but neither mix nor scale them.
constexpr std::array<std::string_view, 6> converterStages{"Plug PCM",
                                                          "Rate conversion PCM",
                                                          "Route conversion PCM",
                                                          "Linear conversion PCM",
                                                          "Linear Integer <-> Linear Float conversion PCM",
                                                          "Copy conversion PCM"};
constexpr std::string_view slavePrefix = "Slave: ";
constexpr std::string_view plugPrefix = "Plug PCM: ";
constexpr size_t maxBlockerChars = 60;

/// The harmless stage that a line names, or null.
const StageName *harmless(std::string_view line)
{
    for (const StageName &name : harmlessStages)
        if (line.starts_with(name.text) && (name.stage != Stage::null || line == name.text))
            return &name;
    return nullptr;
}

bool converts(std::string_view line)
{
    return std::any_of(converterStages.begin(), converterStages.end(),
                       [line](std::string_view name) { return line.starts_with(name); });
}

/// Takes what one stage says into account.
void addStage(PcmChain &chain, std::string_view line)
{
    const StageName *stage = harmless(line);
    if (!stage) {
        if (chain.blocker.empty())
            chain.blocker = std::string(line.substr(0, maxBlockerChars));
        chain.mixes |= !converts(line);
        return;
    }
    chain.hardware |= stage->stage == Stage::hardware;
    chain.file |= stage->stage == Stage::file;
    chain.clocked &= stage->stage != Stage::null;
}

} // namespace

PcmChain parsePcmChain(std::string_view dump)
{
    PcmChain chain;
    bool first = true;
    while (!dump.empty()) {
        const size_t end = dump.find('\n');
        std::string_view line = dump.substr(0, end);
        dump = end == std::string_view::npos ? std::string_view() : dump.substr(end + 1);
        if (line.starts_with(slavePrefix))
            line.remove_prefix(slavePrefix.size());
        else if (!first)
            continue;
        first = false;
        addStage(chain, line);
        // A plug prints the stage that it put in, or its slave, on its own line.
        if (line.starts_with(plugPrefix))
            addStage(chain, line.substr(plugPrefix.size()));
    }
    if (!chain.hardware && chain.clocked && chain.blocker.empty()) {
        chain.blocker = "a chain without a known end";
        chain.mixes = true;
    }
    chain.untouched = chain.blocker.empty();
    return chain;
}

} // namespace kelp_core
