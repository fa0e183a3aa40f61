#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace output_test {

/// A row as the window makes it of a `-list` line.
struct ListRow
{
    std::string id;
    std::string label;
    bool operator==(const ListRow &) const = default;
};

inline std::vector<std::string> split(const std::string &text, char separator)
{
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        parts.push_back(part);
    return parts;
}

/// Reads `-list` by the rules of the reader, which are not those of the writer.
inline std::vector<ListRow> readList(const std::string &text)
{
    std::vector<ListRow> rows;
    for (const std::string &line : split(text, '\n')) {
        const std::vector<std::string> fields = split(line, '\t');
        if (fields.empty() || line[0] == '[')
            continue;
        const bool hardware = line.starts_with("hw:") || line.starts_with("plughw:");
        if (hardware) {
            rows.push_back({fields[0], fields.size() > 1 && !fields[1].empty()
                                           ? fields[0] + " (" + fields[1] + ")"
                                           : fields[0]});
        } else if (fields.size() >= 3) {
            rows.push_back({fields[0], fields[2] + " (" + fields[1] + ")"});
        } else if (line.starts_with("pulse")) {
            rows.push_back(
                {fields[0], fields[0] == "pulse" ? "pulse (system mixer; non-bit-perfect)" : fields[0]});
        }
    }
    return rows;
}

/// A record as the window makes it of the lines of `-list-devices`.
struct CapabilityRow
{
    std::string id;
    bool nativeDsd = false;
    bool dop1x = false;
    bool dop2x = false;
    std::string rates;
    bool operator==(const CapabilityRow &) const = default;
};

inline std::vector<CapabilityRow> readCapabilities(const std::string &text)
{
    const std::string ratesHead = "└ rates:";
    std::vector<CapabilityRow> rows;
    for (const std::string &line : split(text, '\n')) {
        if (line.starts_with("DEV")) {
            std::istringstream stream(line);
            std::vector<std::string> fields;
            for (std::string word; stream >> word;)
                fields.push_back(word);
            if (fields.size() >= 7)
                rows.push_back({fields[1], fields[3] == "yes", fields[4] == "yes", fields[5] == "yes", ""});
        } else if (line.starts_with(ratesHead) && !rows.empty()) {
            const std::string rest = line.substr(ratesHead.size());
            rows.back().rates = rest.substr(rest.find_first_not_of(' '));
        }
    }
    return rows;
}

} // namespace output_test
