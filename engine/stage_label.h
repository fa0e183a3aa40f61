/// \file
/// Names what the calling thread does, for the stall report.
#pragma once

#include "engine/player_session.h"

/// The label stands for as long as this object lives; then the former one is back.
class StageLabel
{
public:
    /// \param exchange may be empty; outlives this object
    StageLabel(const ExchangeStage &exchange, const QString &label)
        : m_exchange(exchange)
    {
        if (m_exchange)
            m_former = m_exchange(label);
    }
    ~StageLabel()
    {
        if (m_exchange)
            m_exchange(m_former);
    }
    StageLabel(const StageLabel &) = delete;
    StageLabel &operator=(const StageLabel &) = delete;

private:
    const ExchangeStage &m_exchange;
    QString m_former;
};
