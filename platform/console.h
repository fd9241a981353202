#pragma once

/// Lets what the program prints reach the console that it was started from, where the system gives
/// a program with windows none of its own accord.
void attachConsole();
