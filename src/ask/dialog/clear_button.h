#pragma once

#include <QPushButton>

#include "base/clearing.h"
#include "base/translate.h"

namespace zelvor {

// The button of a box or list that would keep the console's CLEAR from the operator. It takes no keyboard, so that
// neither Enter nor Space, meant for an answer, clears the screen.
inline QPushButton* makeClearButton(Clearing& clearing) {
    auto* button = new QPushButton(QStringLiteral("CLEAR"));
    button->setObjectName(QStringLiteral("cmdCLEAR"));
    button->setToolTip(translate("ask", "Ends the card without an answer and clears the screen (Ctrl+Shift+Delete)"));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QPushButton::clicked, &clearing, &Clearing::press);
    return button;
}

}  // namespace zelvor
