#pragma once

#include <QObject>
#include <QString>
#include <map>
#include <memory>
#include <vector>

#include "form/control.h"

namespace zelvor {

// Every control of the main form (frmMAIN) that a script or a rule may read or change, found by name and, in a
// control array, by number. It knows no widget.
class FormModel : public QObject {
    Q_OBJECT

 public:
    // Makes all controls with their first texts.
    FormModel();

    // The control of that name and number. Asking for one that does not exist throws 9 Subscript out of range.
    [[nodiscard]] Control& at(const QString& name, int index = -1) const;
    // The same, null when there is none.
    [[nodiscard]] Control* find(const QString& name, int index = -1) const;
    // All elements of that name, in order of their numbers; empty when there is none.
    [[nodiscard]] std::vector<Control*> named(const QString& name) const;
    [[nodiscard]] std::vector<Control*> all() const;

 Q_SIGNALS:
    // Any property of any control has changed.
    void changed(zelvor::Control* control, zelvor::Control::Property property);

 private:
    Control& add(Control::Kind kind, const QString& name, int index = -1, const QString& text = {});
    void addArray(Control::Kind kind, const QString& name, int first, int last, const QStringList& texts = {});
    void addCards();
    void addLinks();
    void addClocksAndScores();
    void addSettings();
    void addPlayersAndProposals();

    std::map<std::pair<QString, int>, std::unique_ptr<Control>> controls_;
};

}  // namespace zelvor
