#include "orv_combo_box.h"

#include "orv_selection_popup.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace OrvWidgets {

class OrvComboBoxPrivate
{
public:
    OrvSelectionPopup* popup = nullptr;
    QPointer<QAbstractItemModel> shownModel;
    int shownColumn = -1;
};

OrvComboBox::OrvComboBox(QWidget* parent)
    : QComboBox(parent)
    , d(std::make_unique<OrvComboBoxPrivate>())
{
    d->popup = new OrvSelectionPopup(this);
    d->popup->setObjectName(QStringLiteral("OrvComboBoxPopup"));
    connect(d->popup, &OrvSelectionPopup::rowActivated, this, [this](int row) {
        setCurrentIndex(row);
        Q_EMIT activated(row);
        Q_EMIT textActivated(itemText(row));
    });
    connect(d->popup, &OrvSelectionPopup::checkedRowsChanged, this, [this] {
        update();
        Q_EMIT checkedRowsChanged();
    });
    connect(d->popup, &OrvSelectionPopup::multiSelectionChanged, this, &OrvComboBox::multiSelectionChanged);
    connect(d->popup, &OrvSelectionPopup::closed, this, [this] {
        if (isVisible())
            setFocus(Qt::PopupFocusReason);
    });
}

OrvComboBox::~OrvComboBox() = default;

bool OrvComboBox::isMultiSelection() const
{
    return d->popup->isMultiSelection();
}

void OrvComboBox::setMultiSelection(bool multi)
{
    syncModel();
    d->popup->setMultiSelection(multi);
    update();
}

QList<int> OrvComboBox::checkedRows() const
{
    return d->popup->checkedRows();
}

void OrvComboBox::setCheckedRows(const QList<int>& rows)
{
    syncModel();
    d->popup->setCheckedRows(rows);
}

QStringList OrvComboBox::checkedTexts() const
{
    QStringList texts;
    for (const int row : d->popup->checkedRows())
        texts << itemText(row);
    return texts;
}

QString OrvComboBox::summaryText() const
{
    const QStringList texts = checkedTexts();
    if (texts.isEmpty())
        return placeholderText();
    const QString names = texts.join(QLatin1String(", "));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    if (texts.size() == 1 || fontMetrics().horizontalAdvance(names) <= field.width())
        return names;
    return tr("%n selected", nullptr, int(texts.size()));
}

OrvSelectionPopup* OrvComboBox::selectionPopup() const
{
    return d->popup;
}

void OrvComboBox::showPopup()
{
    syncModel();
    d->popup->setFilterText(QString());
    d->popup->setCurrentRow(currentIndex());
    d->popup->showAt(this);
}

void OrvComboBox::hidePopup()
{
    d->popup->hide();
}

void OrvComboBox::paintEvent(QPaintEvent* event)
{
    if (!isMultiSelection() || isEditable()) {
        QComboBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentIcon = QIcon();
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(summaryText(), Qt::ElideRight, field.width());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void OrvComboBox::keyPressEvent(QKeyEvent* event)
{
    // A printable key on a closed list starts a search with that text.
    const QString text = event->text();
    const bool printable = !text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace() &&
                           !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!isEditable() && printable && count() > 0) {
        showPopup();
        d->popup->setFilterText(text);
        event->accept();
        return;
    }
    if (isMultiSelection() && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        // Stepping through items would change a current index nobody reads.
        showPopup();
        event->accept();
        return;
    }
    QComboBox::keyPressEvent(event);
}

void OrvComboBox::syncModel()
{
    if (d->shownModel == model() && d->shownColumn == modelColumn())
        return;
    d->shownModel = model();
    d->shownColumn = modelColumn();
    d->popup->setModel(model(), modelColumn());
}

} // namespace OrvWidgets
