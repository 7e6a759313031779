#pragma once

#include <QAbstractListModel>
#include <QString>
#include <deque>

namespace zelvor {

// A list of text lines that keeps the newest 500. Lines added, and that the list was cleared, are seen from the next
// turn of the event loop on, all at once: a card writes dozens before its line leaves.
class LineList : public QAbstractListModel {
    Q_OBJECT

 public:
    static constexpr int kMostLines = 500;
    // True for a line that is to stand out, a reply that tells of an error.
    static constexpr int kAlarmRole = Qt::UserRole;

    enum class Newest { First, Last };

    explicit LineList(Newest newest, QObject* parent = nullptr);

    // Adds the newest line, then drops the oldest one when there are more than kMostLines.
    void add(QString text, bool alarm = false);
    void clear();

    // The line's text; row 0 is the top line. Empty outside of the list.
    [[nodiscard]] QString text(int row) const;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
    struct Line {
        QString text;
        bool alarm = false;
    };

    void changeSoon();
    void change();

    Newest newest_;
    std::deque<Line> lines_;
    std::deque<Line> added_;  // since the last turn
    bool cleared_ = false;    // before those
    bool changesSoon_ = false;
};

}  // namespace zelvor
