#pragma once

namespace korvande {

// Platform: has controls change their look at once, not fade to it. Where they do by themselves, to disable the form
// for a run asks for as many repaints of all of it as the fading has steps, which takes longer than to translate a
// drawing.
void FadeNothing();

}  // namespace korvande
