/// \file
/// The window's memory of the cover.
#pragma once

#include <QImage>

class CoverStore;

struct CoverState
{
    CoverStore *store = nullptr; ///< a child of the window, made at the first cover
    int generation = 0;          ///< raised at every wish; answers to older ones go to the cache alone
    QImage image;                ///< what was shown last; null for none
};
