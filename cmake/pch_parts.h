// Precompiled for all parts and for the window. Headers still include what they use.
#pragma once
#include <QtCore>
#include <QtGui>
#include <QtWidgets>
#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
