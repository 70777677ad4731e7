// The conversion of an equation from the form people write to the one that is run.
#pragma once

#include <string>
#include <string_view>

namespace corvex {

enum class PostfixResult : int { kDone = 0, kUnbalanced = 1, kUnreadable = 3 };

// Appends to `postfix` each token behind a space: "(X*0.75)-40" becomes " X 0.75 * 40 -". The text is taken as it is,
// without an end at a NUL. On failure `postfix` holds what was converted so far.
//
// Oddities that saved equations depend on: tokens side by side need no operator ("1 2"), and a second operator in a
// row that begins no negative number stands behind an empty operand ("2**3" becomes " 2  * 3 *").
PostfixResult ConvertToPostfix(std::string_view infix, std::string& postfix);

}  // namespace corvex
