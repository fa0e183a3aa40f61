/// \file
/// How heavy the toolkit draws the letters of fonts with PostScript outlines.
#pragma once

/// From here on such letters are drawn as those of all other fonts are. Of its own accord the toolkit has
/// them thickened and then blended for ink on paper: light letters on a dark ground, which is how this
/// program looks at first, come out nearly bold, beside figures of another font that do not. Call before the
/// toolkit starts. Where the toolkit brings a font library of its own, nothing happens.
void drawLettersAtTheirWeight();

/// Whether this property of the font library, by its module, is the one that thickens letters.
bool thickensLetters(const char *module, const char *property);
