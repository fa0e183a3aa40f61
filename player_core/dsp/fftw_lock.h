#pragma once

#include <mutex>

namespace kelp_core {

/// FFTW's planner (making and destroying plans) is not thread-safe; all of the engine takes this lock round
/// it. Executing a plan needs no lock.
std::mutex &fftwPlannerMutex();

} // namespace kelp_core
