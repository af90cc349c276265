// SPDX-License-Identifier: MIT
//
// What happens to messages that an object of the platform, or of a class below one of its classes,
// does not answer: instead of raising, each is logged once with class and selector, and answers
// zero.
#pragma once

namespace desktop::uikit {

// From now on, for the life of the process. Objects of other classes keep what they have.
void answerMissingMessages();

}  // namespace desktop::uikit
