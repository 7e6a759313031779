#pragma once

#include <QString>
#include <QStringList>

#include "engine/variable_store.h"

namespace zelvor {

// Template data as XML for a double-quoted AMCP parameter: every quote of the XML, and every apostrophe in a value,
// is written as backslash and double quote. Nothing else in a value is escaped.
struct TemplateXml {
    QString text;
    // What stands in the fields' values that breaks the XML: "NAME holds a quote", each field once.
    QStringList faults;
};

// Keys "t-ani*id" and "i-ani*id" are split at "-" and "*". Throws 9 for a malformed key.
TemplateXml makeXml(const VariableStore& fields);

// Meant to differ: the key's third character is the animation, the rest from the fifth on the id, and a value with "|"
// needs three pieces. Throws 9 for fewer.
TemplateXml makeRemoteXml(const VariableStore& fields);

}  // namespace zelvor
