#pragma once

class QProcess;

/// Lets what the program prints reach the console that it was started from, where the system gives
/// a program with windows none of its own accord.
void attachConsole();

/// Lets a process that is yet to be started outlive the console or terminal of this one.
void leaveConsole(QProcess &process);
