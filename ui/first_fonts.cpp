#include "ui/first_fonts.h"

#include "ui/type_families.h"

#include <iterator>

std::vector<FontWish> firstFonts()
{
    const std::vector<std::string> words(std::begin(type_families::words), std::end(type_families::words));
    const std::vector<std::string> figures(std::begin(type_families::figures),
                                           std::end(type_families::figures));
    // The order in which the window comes to need them.
    return {{figures, FC_WEIGHT_REGULAR, {12}},
            {words, FC_WEIGHT_REGULAR, {12}},
            {figures, FC_WEIGHT_REGULAR, {11, 30, 18, 14}},
            {words, FC_WEIGHT_REGULAR, {13, 15}},
            {words, FC_WEIGHT_SEMIBOLD, {12, 14, 20, 34}},
            {figures, FC_WEIGHT_BOLD, {12}},
            {words, FC_WEIGHT_BOLD, {11}}};
}
