"""Whether a stroke keeps every sample that came while the interface thread was busy."""

import time

from PIL import ImageChops

from .heldthread import held
from .processinfo import wait_until_quiet
from .row import Row
from .stages import FULL_HD

SAMPLES = 200
BUSY_S = 0.6
STEP_PX = 8  # each sample is a tooth of its own
LEFT, TOP, TOOTH_PX = 150, 500, 30
HAND_S = 0.008


def rows(stages, notes):
    stage = stages.with_marks(FULL_HD, 0)
    teeth = [(LEFT + STEP_PX * i, TOP + TOOTH_PX * (i % 2)) for i in range(SAMPLES)]
    wanted = draw(stage, teeth, lambda: glide(stage, teeth, HAND_S))
    got = draw(stage, teeth, lambda: glide_while_busy(stage, teeth))
    one_less = teeth[:100] + teeth[101:]
    spoilt = draw(stage, teeth, lambda: glide(stage, one_less, HAND_S))
    if same_teeth(teeth, wanted, spoilt) == SAMPLES:
        raise RuntimeError("a stroke without one of its samples looks like the whole one")
    yield Row("samples kept of 200, interface busy for 600 ms", SAMPLES,
              same_teeth(teeth, wanted, got), at_least=True)


def draw(stage, teeth, glide_along):
    """The picture of a stroke, which is then taken back."""
    pointer = stage.desktop.pointer
    pointer.move(LEFT - 60, TOP)
    pointer.press()
    # The first points of a stroke are joined in another way.
    for x in range(LEFT - 50, LEFT, 10):
        pointer.move(x, TOP)
    wait_until_quiet(stage.program.pid, window_s=0.3)
    glide_along()
    pointer.move(LEFT + STEP_PX * SAMPLES, TOP)
    pointer.release()
    wait_until_quiet(stage.program.pid, window_s=0.3)
    picture = stage.desktop.screen.shot((0, 0, FULL_HD[0], TOP + 2 * TOOTH_PX))
    stage.undo()
    return picture


def glide(stage, teeth, pause_s):
    for tooth in teeth:
        stage.desktop.pointer.move(*tooth)
        time.sleep(pause_s)


def glide_while_busy(stage, teeth):
    with held(stage.program.pid):
        end = time.monotonic() + BUSY_S
        glide(stage, teeth, BUSY_S * 0.75 / SAMPLES)
        if time.monotonic() > end:
            raise RuntimeError("the samples were not sent within the time; the machine is too busy")
        time.sleep(end - time.monotonic())


def same_teeth(teeth, wanted, got):
    """How many samples left the same ink around them in both pictures."""
    difference = ImageChops.difference(wanted, got)
    half = STEP_PX // 2
    return sum(difference.crop((x - half, TOP - 5, x + half, TOP + TOOTH_PX + 5)).getbbox() is None
               for x, _ in teeth)
