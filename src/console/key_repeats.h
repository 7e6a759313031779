#pragma once

#include <QKeyEvent>

namespace zelvor {

// Tells the repeats of a held key from presses. X11 reports many of them as a release and a press like any other; only
// that both carry the same time gives them away.
class KeyRepeats {
 public:
    // Notes the event, a press or release as a window receives it; true for a press that is a repeat.
    bool isRepeat(const QKeyEvent& event);

 private:
    int released_ = 0;
    quint64 releasedAt_ = 0;
};

// True for keys that move and type: held down they go on. All others do one deed a press.
bool repeatsWhenHeld(const QKeyEvent& event, const QObject* focus);

}  // namespace zelvor
