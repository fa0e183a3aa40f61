#include "engine/line_cutter.h"

void LineCutter::append(std::string_view bytes)
{
    if (m_begin > 0) {
        m_buffer.erase(0, m_begin);
        m_scanned -= m_begin;
        m_begin = 0;
    }
    m_buffer.append(bytes);
}

std::optional<std::string> LineCutter::next()
{
    const std::size_t newline = m_buffer.find('\n', m_scanned);
    if (newline != std::string::npos) {
        std::string line = m_buffer.substr(m_begin, newline + 1 - m_begin);
        m_begin = m_scanned = newline + 1;
        return line;
    }
    m_scanned = m_buffer.size();
    if (m_buffer.size() - m_begin > partialLimitBytes)
        return takePartial();
    return std::nullopt;
}

std::string LineCutter::takePartial()
{
    std::string rest = m_buffer.substr(m_begin);
    m_buffer.clear();
    m_begin = m_scanned = 0;
    return rest;
}
