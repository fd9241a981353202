#pragma once

#include "canvas/mypainter.h"
#include "tests/canvas/common/signalrecorder.h"

#include <QImage>
#include <QSet>
#include <QVariantList>

#include <functional>
#include <optional>

class Stage;

/// What a call must do, as far as the call itself can tell beforehand.
struct Expectation {
    enum Board {
        Unchanged,
        Appended, ///< one new element on top, recorded as an addition
        Reduced, ///< elements may be gone, the others keep their order
    };

    enum Loss { Nothing, UndoneChanges, Everything };

    /// A change that the call records; doing changes over again is then over.
    struct Record {
        HistoryEntry::Kind kind;
        bool trims = false; ///< the oldest entries go beyond a fixed number
    };

    enum Repaint { Never, Perhaps, Always };

    Repaint repaint = Never; ///< whether a picture kept over a resize is brought up to date
    Board board = Unchanged;
    std::optional<QStringList> ids = {}; ///< in place of `board`: exactly these elements, in order
    std::optional<QRect> topBounds = {}; ///< of the topmost element
    bool quiet = false; ///< emits nothing
    std::optional<Record> records = {};
    /// What else is wrong after the call.
    QString problem = {};
    Loss loss = UndoneChanges; ///< what may be gone for good
};

/// One call on the canvas. `text` says it to people.
struct Call {
    QString text;
    std::function<Expectation(Stage &)> play;
    /// Whether a frame is shown after it: several calls between two frames are repainted at once.
    bool showsFrame = true;
};

/// A canvas under test, and everything that must be true of it after every call.
class Stage
{
public:
    Stage();

    /// Plays one call and answers with what is wrong then, or with nothing.
    [[nodiscard]] QString play(const Call &call);

    [[nodiscard]] bool hasSize() const { return canvas.width() > 0 && canvas.height() > 0; }
    [[nodiscard]] bool stampsNumbers() const
    {
        return canvas.drawMode() == MyPainter::NumberedCircleMode;
    }
    /// The topmost element that shows within `tolerance` of `pos`, or an empty text.
    [[nodiscard]] QString topmostAt(const QPoint &pos, int tolerance) const;
    /// Resizes the canvas and keeps account of the picture that it must show then.
    void resize(const QSizeF &size);

    MyPainter canvas;
    int lastNumber = 0;
    bool inBatch = false; ///< transforms are recorded when it ends
    bool gestureBegun = false; ///< the next handled move starts a mark or a group of erasures
    QString selectedId;

private:
    struct Before;

    [[nodiscard]] QVariantList properties() const;
    [[nodiscard]] QSet<QString> knownIds() const;
    [[nodiscard]] QString boardProblem(const Expectation &expected, const Before &before) const;
    [[nodiscard]] QString ownerProblem() const;
    [[nodiscard]] QString lossProblem(const Expectation &expected, const Before &before) const;
    [[nodiscard]] QString selectionProblem() const;
    [[nodiscard]] QString numberProblem() const;
    [[nodiscard]] QString recordProblem(const Expectation &expected, const Before &before) const;
    [[nodiscard]] QString signalProblem(const Expectation &expected, const Before &before);
    [[nodiscard]] QString pictureProblem(const Expectation &expected, bool showsFrame);

    SignalRecorder m_signals{ canvas, MyPainter::staticMetaObject };
    /// Resized, the picture stays as it is, whatever the elements are, until the next change of
    /// content.
    bool m_frozen = true;
    QImage m_frozenPicture;
};
