#include "player_core/output/pcm_chain.h"

#include <algorithm>
#include <array>
#include <charconv>

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
            chain.blocker = line.empty() ? "a stage without a name" // and no blocker would be harmless
                                         : std::string(line.substr(0, maxBlockerChars));
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

namespace {

/// The value of "  name         : value", or nothing.
std::string_view fieldOf(std::string_view line, std::string_view name)
{
    const size_t colon = line.find(" : ");
    if (colon == std::string_view::npos || !line.starts_with("  "))
        return {};
    std::string_view key = line.substr(2, colon - 2);
    key = key.substr(0, key.find(' '));
    return key == name ? line.substr(colon + 3) : std::string_view();
}

int positiveOf(std::string_view text)
{
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && value > 0 ? value : 0;
}

} // namespace

ReadBack parseEndSetup(std::string_view dump)
{
    ReadBack record;
    while (!dump.empty()) {
        const size_t end = dump.find('\n');
        const std::string_view line = dump.substr(0, end);
        dump = end == std::string_view::npos ? std::string_view() : dump.substr(end + 1);
        if (line.starts_with("Its setup is:"))
            record = {};
        if (const std::string_view rate = fieldOf(line, "rate"); !rate.empty())
            record.rateHz = positiveOf(rate);
        if (const std::string_view channels = fieldOf(line, "channels"); !channels.empty())
            record.channels = positiveOf(channels);
        if (const std::string_view format = fieldOf(line, "format"); !format.empty())
            record.format = std::string(format.substr(0, maxBlockerChars));
    }
    record.known = record.rateHz > 0 && record.channels > 0 && !record.format.empty();
    record.origin = "setup of the file at the end";
    return record.known ? record : ReadBack{};
}

} // namespace kelp_core
