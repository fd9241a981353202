"""A sound server of the test's own, and tones to record."""

import array
import math
import os
import subprocess

from .server import tool
from .waiting import wait_for

RATE = 48000
TONE_S = 60


class SoundServer:
    """Serves one output that nobody hears. `address` is the value of PULSE_SERVER."""

    def __init__(self, desktop):
        self._guard = desktop.guard
        self._folder = os.path.join(desktop.folder, "sound")
        os.makedirs(self._folder)
        self.address = f"unix:{self._folder}/socket"
        env = desktop.env(PULSE_RUNTIME_PATH=self._folder, HOME=self._folder)
        self._env = {**env, "PULSE_SERVER": self.address}
        modules = ["module-null-sink sink_name=speaker",
                   f"module-native-protocol-unix auth-anonymous=1 socket={self._folder}/socket"]
        self._guard.start(
            [tool("pulseaudio"), "-n", "--daemonize=no", "--exit-idle-time=-1", "--log-level=error",
             *(word for module in modules for word in ("-L", module))], env=env)
        wait_for(self._answers, "the sound server to answer")

    def _answers(self):
        return subprocess.run([tool("pactl"), "set-default-sink", "speaker"], env=self._env,
                              stderr=subprocess.DEVNULL).returncode == 0

    def play(self, hertz):
        """Plays a tone for a minute; returns once it can be heard."""
        samples = array.array("h", (round(16000 * math.sin(2 * math.pi * hertz * i / RATE))
                                    for i in range(RATE)))
        path = os.path.join(self._folder, "tone")
        with open(path, "wb") as file:
            file.write(samples.tobytes() * TONE_S)
        self._guard.start([tool("paplay"), "--raw", "--format=s16le", f"--rate={RATE}",
                           "--channels=1", "--latency-msec=50", path], env=self._env)
        listener = self._guard.start(
            [tool("parec"), "--latency-msec=20", "--device=speaker.monitor"], env=self._env,
            stdout=subprocess.PIPE)
        wait_for(lambda: any(os.read(listener.stdout.fileno(), 4096)), "the tone to be heard")
        listener.kill()
        listener.wait()
        listener.stdout.close()


def tone_share(path, hertz):
    """How much of a recording's sound is the tone: 0.0 to 1.0."""
    rate = 8000
    samples = array.array("h", subprocess.run(
        [tool("ffmpeg"), "-v", "error", "-i", path, "-ac", "1", "-ar", str(rate), "-f", "s16le",
         "-"], stdout=subprocess.PIPE, check=True).stdout)
    # Blocks, so that a gap does not turn the tone's phase against itself.
    block = rate // 10
    energy, at_tone = 0.0, 0.0
    for start in range(0, len(samples) - block + 1, block):
        part = samples[start:start + block]
        turns = [2 * math.pi * hertz * i / rate for i in range(block)]
        real = sum(sample * math.cos(turn) for sample, turn in zip(part, turns))
        imaginary = sum(sample * math.sin(turn) for sample, turn in zip(part, turns))
        energy += sum(sample * sample for sample in part)
        at_tone += (real * real + imaginary * imaginary) * 2 / block
    return at_tone / energy if energy else 0.0
