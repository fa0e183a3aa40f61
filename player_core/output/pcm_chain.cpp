#include "player_core/output/pcm_chain.h"

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
constexpr std::string_view slavePrefix = "Slave: ";
constexpr size_t maxBlockerChars = 60;

/// The harmless stage that a line names, or null.
const StageName *harmless(std::string_view line)
{
    for (const StageName &name : harmlessStages)
        if (line.starts_with(name.text) && (name.stage != Stage::null || line == name.text))
            return &name;
    return nullptr;
}

} // namespace

PcmChain parsePcmChain(std::string_view dump)
{
    PcmChain chain;
    bool first = true;
    bool ended = false;
    while (!dump.empty()) {
        const size_t end = dump.find('\n');
        std::string_view line = dump.substr(0, end);
        dump = end == std::string_view::npos ? std::string_view() : dump.substr(end + 1);
        if (line.starts_with(slavePrefix))
            line.remove_prefix(slavePrefix.size());
        else if (!first)
            continue;
        first = false;
        if (line == "Null PCM")
            chain.clocked = false;
        const StageName *stage = harmless(line);
        if (!stage) {
            if (chain.blocker.empty())
                chain.blocker = std::string(line.substr(0, maxBlockerChars));
            continue;
        }
        chain.hardware |= stage->stage == Stage::hardware;
        chain.file |= stage->stage == Stage::file;
        ended |= stage->stage == Stage::hardware || stage->stage == Stage::null;
    }
    if (!ended && chain.blocker.empty())
        chain.blocker = "a chain without a known end";
    chain.untouched = chain.blocker.empty();
    return chain;
}

} // namespace kelp_core
