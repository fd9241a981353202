#pragma once

/// Every text of the recording controller: the debug log and the messages of `recordingError`.
namespace CaptureTexts
{

// Debug log
inline constexpr char kConstructed[] = "VideoCaptureObject cpp constructor";
inline constexpr char kDestroyed[] = "VideoCaptureObject destructor";
inline constexpr char kDestroyedWhileRunning[] =
    "VideoCaptureObject destructor: Process is still running. Attempting to kill.";
inline constexpr char kAlreadyRecording[] = "Already recording or in the process of stopping.";
inline constexpr char kDirectoryMissing[] =
    "Output directory does not exist. Attempting to create: ";
inline constexpr char kDirectoryCreated[] = "Output directory created successfully: ";
inline constexpr char kDirectoryFailed[] = "Failed to create output directory: ";
inline constexpr char kScreenRatio[] = "Screen devicePixelRatio:";
inline constexpr char kLogicalArea[] = "Original coordinates:";
inline constexpr char kPhysicalArea[] = "Physical coordinates:";
inline constexpr char kStarting[] = "Starting process: ";
inline constexpr char kStartFailed[] = "Failed to start process: ";
inline constexpr char kNotRecording[] = "Not recording or already stopped/stopping.";
inline constexpr char kAlreadyStopping[] = "Already attempting to stop gracefully.";
inline constexpr char kStopping[] = "Attempting to stop recording gracefully...";
inline constexpr char kNothingToStop[] = "Process not running or already stopped.";
inline constexpr char kStopTimedOut[] = "Graceful stop timed out.";
inline constexpr char kKilling[] = "Process did not terminate gracefully, killing it.";
inline constexpr char kStoppedBeforeKill[] =
    "Process already stopped by the time kill timer fired.";
inline constexpr char kStarted[] = "Process started successfully.";
inline constexpr char kFinished[] = "Process finished. Exit code: ";
inline constexpr char kFinishedStatus[] = ", Exit status: ";
inline constexpr char kFinishedInTime[] = "Process finished gracefully before kill timer timeout.";
inline constexpr char kProcessError[] = "Process error: ";

// Messages of recordingError; all but the last are followed by a path or an error string
inline constexpr char kErrorDirectory[] = "Failed to create output directory: ";
inline constexpr char kErrorStart[] = "Failed to start recorder.exe: ";
inline constexpr char kErrorProcess[] = "Recording process error: ";
inline constexpr char kErrorCrash[] = "Recorder.exe process ended unexpectedly (possibly crashed).";

} // namespace CaptureTexts
