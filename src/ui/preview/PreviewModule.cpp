#include "ui/PreviewPlayer.h"
#include "ui/preview/AVSPDocument.h"

#include <type_traits>

extern "C" Q_DECL_EXPORT QDialog *corvalis_create_preview(
    const QUrl &file, QWidget *parent, const PreviewAlert &alert)
{
    return new AVSPDocument(file, parent, alert);
}

static_assert(std::is_same_v<decltype(&corvalis_create_preview), CreatePreview>);
