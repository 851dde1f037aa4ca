// Card symbols drawn at random.
#pragma once

namespace terramark {

struct Form1;

/// Draws a card symbol's code, seeding the generator from the clock each time: "1" one time in six,
/// "2" one in three, "3" one in two.
char RandomCardSymbol(Form1& form);

}  // namespace terramark
