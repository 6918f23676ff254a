#pragma once
// The commands that draw (a PDF, a chart image) need Qt GUI for its fonts
// and painters. They start it here, on the offscreen platform unless the
// caller chose another, so that no display is needed; the other commands
// never start it and keep their quick start-up.
namespace kelvaro::cli {

void StartGui();

}  // namespace kelvaro::cli
