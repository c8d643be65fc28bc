// The sheet that shows the image which was opened, with the button that writes it.
#pragma once

#include "kit/Sheet.h"

namespace desktop {

/// Tells the name, the folder and the size of the image.
class Window_Opened_Image : public Sheet {
    Q_OBJECT
public:
    /// `image` is the full path.
    Window_Opened_Image(SheetStage *stage, const QString &image);

Q_SIGNALS:
    /// The person wants it written.
    void confirmed();

protected:
    void cancelled() override { endSheet(); }

private:
    QLabel *addText(const QString &name, const QString &text);
};

} // namespace desktop
