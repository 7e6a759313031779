#pragma once

#include <QListView>

namespace zelvor {

// A list of time-stamped lines. With the newest line at the bottom it follows the newest one unless the operator has
// scrolled up: then what he reads stays where it is. Lines marked as alarms stand out.
class LineView : public QListView {
    Q_OBJECT

 public:
    enum class Newest { OnTop, AtBottom };

    // lines: must outlive the view.
    LineView(QAbstractItemModel& lines, Newest newest, QWidget* parent = nullptr);

 Q_SIGNALS:
    void lineClicked(const QString& line);

 protected:
    void showEvent(QShowEvent* event) override;

 private:
    void followSoon();

    Newest newest_;
    bool following_ = true;
    bool followsSoon_ = false;
};

}  // namespace zelvor
