#include "platform/font_warm_up.h"

#include "platform/font_library.h"
#include "platform/head_start.h"

#include <utility>

void warmUpFonts(std::vector<FontWish> wishes)
{
    fontLibrary();
    // Without a thread the toolkit asks for itself, later.
    (void)runBeside(WorkRank::InTime, [wishes = std::move(wishes)] {
        // The configuration is the library's own, guarded by itself, and stays until the process ends.
        if (!FcInit())
            return;
        prepareFontList();
        prepareFontAnswers(wishes);
    });
}
