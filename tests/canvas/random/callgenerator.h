#pragma once

#include "tests/canvas/random/stage.h"

#include <random>

/// Makes up calls, legal and illegal, the same ones for the same seed and stage.
class CallGenerator
{
public:
    explicit CallGenerator(quint64 seed) : m_random(seed) { }

    [[nodiscard]] Call next(const Stage &stage);

private:
    using Maker = Call (CallGenerator::*)();

    [[nodiscard]] int within(int least, int most);
    [[nodiscard]] bool oneIn(int chances) { return within(1, chances) == 1; }
    template <typename T> T oneOf(std::initializer_list<T> choices)
    {
        return *(choices.begin() + within(0, static_cast<int>(choices.size()) - 1));
    }
    [[nodiscard]] QPoint position();
    [[nodiscard]] int length();
    [[nodiscard]] QString text();

    Call press();
    Call move();
    Call release();
    Call setDrawMode();
    Call setErasing();
    Call setPen();
    Call setProperty();
    Call placeText();
    Call placePreparedText();
    Call deleteElement();
    Call undo();
    Call redo();
    Call clear();
    Call select();
    Call selectById();
    Call translate();
    Call scale();
    Call rotate();
    Call batch();
    Call startFade();
    Call breathe();
    Call stepEffects();
    Call resize();
    Call forceUpdate();

    std::mt19937_64 m_random;
};
