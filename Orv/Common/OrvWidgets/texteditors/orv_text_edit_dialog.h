#pragma once

#include "orv_dialog.h"
#include "orvwidgets_export.h"

#include <QColor>
#include <QPointer>
#include <QString>

namespace OrvWidgets {

class OrvTextEditor2;

/// Ready-made page for editing one rich text. The edited HTML leaves the page by
/// signals when the user applies, once as it is and once carrying the
/// background colour chosen in the editor.
class ORVWIDGETS_EXPORT OrvTextEditDialog : public OrvDialog
{
    Q_OBJECT
public:
    /*! A page with an OK/Apply/Cancel button box around a rich text editor. */
    explicit OrvTextEditDialog(QWidget* parent = nullptr);
    ~OrvTextEditDialog() override;

    /*! Replaces the edited text with \a html. */
    void setHtml(const QString& html);
    /// Empty when there is no editor, text edit or document.
    QString getHtmlText() const;

    /// Background colour choice in the editor (off after construction).
    void enableBackgroundColor(bool enable);
    /*! The background colour the editor starts with; does not mark the page changed. */
    void setInitialBackgroundColor(const QColor& color);

    /*! Re-reads the page title and the editor's texts after a language switch. */
    void retranslate() override;

Q_SIGNALS:
    /*! Emitted with the whole text as HTML whenever the user changes it. */
    void signalTextChanged(const QString& html);
    /*! Emitted with the text as HTML when the user applies. */
    void signalTextApplied(const QString& html);
    /*! Emitted when the user applies, with the text as HTML carrying the chosen background
        colour. */
    void signalTextAppliedWithBackGroundColor(const QString& html);
    /*! Emitted when the user chose another background colour. */
    void signalBackgroundColorChanged(const QColor& color);
    /// For applications that tie their own apply handling to the page; never
    /// emitted by the page itself.
    void signalDialogApplied();
    /*! Emitted when the user cancels the page. */
    void signalDialogCanceled();

protected Q_SLOTS:
    /*! Marks the page changed and passes the colour on. */
    void onBackgroundColorChanged(const QColor& color);

protected:
    /*! Emits the applied text; always succeeds. */
    bool apply() override;
    /*! Emits signalDialogCanceled(), then cancels as every page does. */
    void dialogCanceled() override;

private:
    void emitTextChanged();

    QPointer<OrvTextEditor2> m_textEditor2;
};

} // namespace OrvWidgets
