#include "feed/stopwatch_sender.h"

using namespace Qt::StringLiterals;

namespace zelvor {

StopwatchSender::StopwatchSender(FormModel& form, Graphics& graphics, ErrorTrap& trap)
    : QuietRules(trap),
      button_(form.at(controls.Command1)),
      mark_(form.at(controls.lblTESTSENDER)),
      graphics_(graphics) {
    timer_.setObjectName(u"tmrTEST"_s);
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(kInterval);
    connect(&timer_, &QTimer::timeout, this, &StopwatchSender::tick);
}

void StopwatchSender::Command1() {
    const bool starts = button_.text() == u"START";
    mark_.setVisible(starts);
    if (starts) {
        button_.setText(u"STOP"_s);
        timer_.start();
    } else {
        button_.setText(u"START"_s);
        timer_.stop();
    }
}

void StopwatchSender::tick() {
    quietly(u"tmrTEST_Timer"_s, [&] {
        constexpr int kFractions = 60;  // not 100: meant
        if (++fraction_ == kFractions) {
            fraction_ = 0;
            ++seconds_;
        }
        const QString value = QString::number(seconds_) + u'.' + QString::number(fraction_).rightJustified(2, u'0');
        graphics_.sendLine(LinkId::Main,
                           uR"(CG 1-2 UPDATE 1 "<templateData><componentData id=\"team1\">)"
                           uR"(<data type=\"txt\" ani=\"0\" value=\")"_s +
                               value + uR"(\"></data></componentData></templateData>")"_s,
                           {});
    });
}

}  // namespace zelvor
