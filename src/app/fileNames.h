#pragma once

namespace inkmacro {

/// Lets names of files, which are bytes, survive as texts. A byte that belongs to no letter in UTF-8 becomes a lone low
/// surrogate, U+DC80 to U+DCFF, and that byte again on its way out. The C locale, which is that of many a build
/// machine, counts as UTF-8: Qt would lose every letter that is not ASCII.
void useByteExactNames();

} // namespace inkmacro
