// The integrator tools of the reference host: "flashsim lint DIR" and "flashsim view [DIR]".
#pragma once

/// Whether argv names one of the tools (its first argument is "lint" or "view").
bool IsToolCommand(int argc, char** argv);
/// Runs the tool argv names and returns the process's exit status.
int RunToolCommand(int argc, char** argv);
