#pragma once

// The words that are answered before anything starts: no instance, no
// display, no settings touched. Returns -1 when the launch goes on.
namespace CommandLine {
int answer_and_exit_code(int argc, char** argv);
}
