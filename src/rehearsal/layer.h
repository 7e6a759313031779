#pragma once

#include <QString>
#include <deque>

#include "rehearsal/mixer.h"

namespace zelvor::rehearsal {

// One call into a template's page: one of its functions, or (Invoke) a text that the page runs.
struct TemplateCall {
    enum class Function { Update, Play, Stop, Next, Remove, Invoke };
    Function function = Function::Play;
    QString argument;  // Update: the data, unparsed. Invoke: the text. Otherwise empty.
};

// The calls made to one template, in order, for pages that join later. What the limits push out are the oldest calls
// but the first, updates before all others, so that such a page still sees the template filled and in its right state.
class CallHistory {
 public:
    static constexpr std::size_t kMaxCalls = 200;
    static constexpr qsizetype kMaxText = qsizetype{4} << 20;  // characters over all calls

    void add(TemplateCall call);
    [[nodiscard]] const std::deque<TemplateCall>& calls() const { return calls_; }

 private:
    void dropOldest();

    std::deque<TemplateCall> calls_;
    qsizetype text_ = 0;
};

// What a layer shows: a colour, a picture, or a template with every call that was made to it.
struct Source {
    enum class Kind { Empty, Template, Colour, Picture };

    Kind kind = Kind::Empty;
    QString name = {};  // path in the template folder, or "#RRGGBBAA"
    CallHistory history = {};
    quint64 id = 0;  // of its own for each source that is put on a layer; 0 means none
};

struct Layer {
    Source foreground;
    Source background;  // loaded by LOADBG, waits for PLAY
    bool paused = false;
    Mixer mixer;
};

}  // namespace zelvor::rehearsal
