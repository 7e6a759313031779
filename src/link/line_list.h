#pragma once

#include <QAbstractListModel>
#include <QString>
#include <deque>
#include <initializer_list>
#include <vector>

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

    // Adds the head and the rest behind it as the newest line; the oldest one goes when there are more than
    // kMostLines.
    void add(QStringView head, std::initializer_list<QStringView> rest = {}, bool alarm = false);
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

    // The lines added since the last turn, as one text that is cut only when they are shown.
    class Added {
     public:
        void add(QStringView head, std::initializer_list<QStringView> rest, bool alarm);
        void clear();
        [[nodiscard]] size_t count() const { return ends_.size(); }
        [[nodiscard]] Line line(size_t number) const;
        void dropOldest(size_t count);

     private:
        struct End {
            qsizetype at = 0;  // behind the line's last character
            bool alarm = false;
        };
        [[nodiscard]] qsizetype startOf(size_t number) const { return number > 0 ? ends_[number - 1].at : 0; }

        QString text_;
        std::vector<End> ends_;
    };

    void changeSoon();
    void change();

    Newest newest_;
    std::deque<Line> lines_;
    Added added_;
    bool cleared_ = false;  // before those
    bool changesSoon_ = false;
};

}  // namespace zelvor
