#include "platform/letter_weight.h"

#include <cstring>
#include <dlfcn.h>

namespace {

bool atTheirWeight = false;

} // namespace

void drawLettersAtTheirWeight()
{
    atTheirWeight = true;
}

bool thickensLetters(const char *module, const char *property)
{
    return std::strcmp(module, "cff") == 0 && std::strcmp(property, "no-stem-darkening") == 0;
}

/// Stands before FreeType's own function for the whole program: the toolkit has no other place to say it.
/// FreeType itself does not thicken; the toolkit asks it to, once, and blends by what FreeType then says.
extern "C" __attribute__((visibility("default"))) int FT_Property_Set(void *library, const char *module,
                                                                      const char *property, const void *value)
{
    using Set = int(void *, const char *, const char *, const void *);
    static const auto next = reinterpret_cast<Set *>(dlsym(RTLD_NEXT, "FT_Property_Set"));
    constexpr int unimplemented = 7;
    if (!next)
        return unimplemented;
    constexpr unsigned char plain = 1;
    return next(library, module, property,
                atTheirWeight && thickensLetters(module, property) ? &plain : value);
}
