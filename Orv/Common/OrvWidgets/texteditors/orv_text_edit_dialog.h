#pragma once

#include "orv_dialog.h"
#include "orvwidgets_export.h"

#include <QColor>
#include <QPointer>
#include <QString>

namespace OrvWidgets {

class OrvTextEditor2;

// Ready-made page for editing one rich text. The edited HTML leaves the page by
// signals when the user applies, once as it is and once carrying the
// background colour chosen in the editor.
class ORVWIDGETS_EXPORT OrvTextEditDialog : public OrvDialog
{
    Q_OBJECT
public:
    explicit OrvTextEditDialog(QWidget* parent = nullptr);
    ~OrvTextEditDialog() override;

    void setHtml(const QString& html);
    // Empty when there is no editor, text edit or document.
    QString getHtmlText() const;

    // Background colour choice in the editor (off after construction).
    void enableBackgroundColor(bool enable);
    void setInitialBackgroundColor(const QColor& color);

    void retranslate() override;

Q_SIGNALS:
    void signalTextChanged(const QString& html);
    void signalTextApplied(const QString& html);
    void signalTextAppliedWithBackGroundColor(const QString& html);
    void signalBackgroundColorChanged(const QColor& color);
    // For applications that tie their own apply handling to the page; never
    // emitted by the page itself.
    void signalDialogApplied();
    void signalDialogCanceled();

protected Q_SLOTS:
    void onBackgroundColorChanged(const QColor& color);

protected:
    bool apply() override;
    void dialogCanceled() override;

private:
    void emitTextChanged();

    QPointer<OrvTextEditor2> m_textEditor2;
};

} // namespace OrvWidgets
