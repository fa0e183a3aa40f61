#pragma once

/// How often this thread has called operator new. Whoever links allocation_counter.cpp gets its operators.
long allocationsOfThisThread();
