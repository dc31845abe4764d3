#include "orv_text_editor2.h"
#include "orv_logging_p.h"

#include <QAction>
#include <QActionGroup>
#include <QBuffer>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QPainter>
#include <QSaveFile>
#include <QStringDecoder>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentWriter>
#include <QTextEdit>
#include <QTextList>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <array>

namespace {
bool isBulletStyle(int style)
{
    return style <= QTextListFormat::ListDisc && style >= QTextListFormat::ListSquare;
}

bool isNumberedStyle(int style)
{
    return style <= QTextListFormat::ListDecimal && style >= QTextListFormat::ListUpperRoman;
}
} // namespace

namespace OrvWidgets {

class OrvTextEditor2Private
{
public:
    static constexpr int ActionCount = OrvTextEditor2::FocusToolBar + 1;

    QToolBar* toolBar = nullptr;
    QTextEdit* textEdit = nullptr;
    QComboBox* fontSize = nullptr;
    QComboBox* listStyle = nullptr;
    QComboBox* blockStyle = nullptr;
    std::array<QAction*, ActionCount> actions{};
    QList<int> standardSizes;
    QColor background; // invalid until chosen or set
    QColor textColorShown;
    QTextListFormat::Style lastBullet = QTextListFormat::ListDisc;
    QTextListFormat::Style lastNumbered = QTextListFormat::ListDecimal;
    bool backgroundEnabled = false;

    // A colour swatch (or a letter over a colour bar) at 1x and 2x, so that
    // the icon stays sharp on high-density screens.
    QIcon swatchIcon(const QColor& color, bool letter, const QWidget* widget) const
    {
        const int side = toolBar->iconSize().width() > 0 ? toolBar->iconSize().width() : 16;
        const QColor frame = widget->palette().color(QPalette::WindowText);
        QIcon icon;
        for (const qreal dpr : {1.0, 2.0}) {
            QPixmap pixmap(QSize(side, side) * dpr);
            pixmap.setDevicePixelRatio(dpr);
            pixmap.fill(Qt::transparent);
            QPainter painter(&pixmap);
            painter.setRenderHint(QPainter::Antialiasing);
            if (letter) {
                QFont font = widget->font();
                font.setBold(true);
                font.setPixelSize(qMax(8, side * 2 / 3));
                painter.setFont(font);
                painter.setPen(frame);
                painter.drawText(QRectF(0, 0, side, side * 0.75), Qt::AlignCenter, QStringLiteral("A"));
                painter.fillRect(QRectF(side * 0.1, side * 0.78, side * 0.8, side * 0.2), color);
            } else {
                painter.setPen(QPen(frame, 1));
                painter.setBrush(color);
                painter.drawRoundedRect(QRectF(1.5, 1.5, side - 3, side - 3), 2, 2);
            }
            painter.end();
            icon.addPixmap(pixmap);
        }
        return icon;
    }
};

OrvTextEditor2::OrvTextEditor2(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<OrvTextEditor2Private>())
{
    // The tool bar is the first child: lock passes that walk the children see
    // its widgets before the text edit.
    d->toolBar = new QToolBar(this);
    d->toolBar->setObjectName(QStringLiteral("toolBar"));
    d->toolBar->installEventFilter(this);
    d->textEdit = new QTextEdit(this);
    d->textEdit->setObjectName(QStringLiteral("textEdit"));
    d->textEdit->setAcceptRichText(true);
    d->textEdit->installEventFilter(this);
    createActions();
    createToolBar();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(d->toolBar);
    layout->addWidget(d->textEdit);
    connectActions();

    retranslate();
    applyBackground();
    updateCharActions(d->textEdit->currentCharFormat());
    updateBlockActions();
    updateEnabled();
}

void OrvTextEditor2::createActions()
{
    const struct
    {
        const char* icon;
        QKeySequence key;
        bool checkable;
    } table[OrvTextEditor2Private::ActionCount] = {
        {"format-text-bold", QKeySequence::Bold, true},
        {"format-text-italic", QKeySequence::Italic, true},
        {"format-text-underline", QKeySequence::Underline, true},
        {"format-text-strikethrough", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_X), true},
        {nullptr, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), false},
        {"format-font-size-more", QKeySequence(Qt::CTRL | Qt::Key_BracketRight), false},
        {"format-font-size-less", QKeySequence(Qt::CTRL | Qt::Key_BracketLeft), false},
        {"format-justify-left", QKeySequence(Qt::CTRL | Qt::Key_L), true},
        {"format-justify-center", QKeySequence(Qt::CTRL | Qt::Key_E), true},
        {"format-justify-right", QKeySequence(Qt::CTRL | Qt::Key_R), true},
        {"format-justify-fill", QKeySequence(Qt::CTRL | Qt::Key_J), true},
        {"format-list-unordered", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_8), true},
        {"format-list-ordered", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_7), true},
        {nullptr, QKeySequence(Qt::CTRL | Qt::Key_0), true},
        {nullptr, QKeySequence(Qt::CTRL | Qt::Key_1), true},
        {nullptr, QKeySequence(Qt::CTRL | Qt::Key_2), true},
        {nullptr, QKeySequence(Qt::CTRL | Qt::Key_3), true},
        {"edit-undo", QKeySequence::Undo, false},
        {"edit-redo", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), false},
        {nullptr, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_B), false},
        {nullptr, QKeySequence(Qt::ALT | Qt::Key_F10), false},
    };
    for (int i = 0; i < OrvTextEditor2Private::ActionCount; ++i) {
        auto* action = new QAction(this);
        if (table[i].icon)
            action->setIcon(QIcon::fromTheme(QLatin1String(table[i].icon)));
        action->setShortcut(table[i].key);
        // Two editors in one window must not fight over the same keys.
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        action->setCheckable(table[i].checkable);
        addAction(action);
        d->actions[i] = action;
    }
    d->actions[Redo]->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    // Without theme icons the tool buttons show the short label, in the
    // style it stands for.
    const auto styled = [](void (QFont::*set)(bool)) {
        QFont font;
        (font.*set)(true);
        return font;
    };
    d->actions[Bold]->setFont(styled(&QFont::setBold));
    d->actions[Italic]->setFont(styled(&QFont::setItalic));
    d->actions[Underline]->setFont(styled(&QFont::setUnderline));
    d->actions[StrikeOut]->setFont(styled(&QFont::setStrikeOut));

    auto* alignGroup = new QActionGroup(this);
    for (const Action a : {AlignLeft, AlignCenter, AlignRight, AlignJustify})
        alignGroup->addAction(d->actions[a]);
    auto* headingGroup = new QActionGroup(this);
    for (const Action a : {NormalText, Heading1, Heading2, Heading3})
        headingGroup->addAction(d->actions[a]);
}

void OrvTextEditor2::createToolBar()
{
    d->fontSize = new QComboBox(d->toolBar);
    d->fontSize->setObjectName(QStringLiteral("fontSize"));
    d->fontSize->setEditable(true);
    d->fontSize->setInsertPolicy(QComboBox::NoInsert);
    d->fontSize->setValidator(new QIntValidator(1, 999, d->fontSize));
    d->standardSizes = QFontDatabase::standardSizes();
    for (const int size : std::as_const(d->standardSizes))
        d->fontSize->addItem(QString::number(size));
    d->fontSize->setMinimumContentsLength(3);
    d->fontSize->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

    d->listStyle = new QComboBox(d->toolBar);
    d->listStyle->setObjectName(QStringLiteral("listStyle"));
    for (const QTextListFormat::Style style :
         {QTextListFormat::ListStyleUndefined, QTextListFormat::ListDisc, QTextListFormat::ListCircle,
          QTextListFormat::ListSquare, QTextListFormat::ListDecimal, QTextListFormat::ListLowerAlpha,
          QTextListFormat::ListUpperAlpha, QTextListFormat::ListLowerRoman, QTextListFormat::ListUpperRoman})
        d->listStyle->addItem(QString(), int(style));
    d->blockStyle = new QComboBox(d->toolBar);
    d->blockStyle->setObjectName(QStringLiteral("blockStyle"));
    for (int level = 0; level <= 3; ++level)
        d->blockStyle->addItem(QString(), level);

    QToolBar* bar = d->toolBar;
    bar->addAction(d->actions[Undo]);
    bar->addAction(d->actions[Redo]);
    bar->addSeparator();
    bar->addWidget(d->blockStyle);
    bar->addWidget(d->fontSize);
    for (const Action a : {Bold, Italic, Underline, StrikeOut, TextColor})
        bar->addAction(d->actions[a]);
    bar->addSeparator();
    for (const Action a : {AlignLeft, AlignCenter, AlignRight, AlignJustify})
        bar->addAction(d->actions[a]);
    bar->addSeparator();
    bar->addAction(d->actions[BulletList]);
    bar->addAction(d->actions[NumberedList]);
    bar->addWidget(d->listStyle);
    bar->addSeparator();
    bar->addAction(d->actions[BackgroundColor]);
    d->actions[BackgroundColor]->setVisible(false);

    // Keyboard users reach the tool bar by Tab (or Alt+F10) and leave it by
    // Escape; the tool bar's own buttons take no focus by default.
    QWidget* previous = nullptr;
    for (QAction* a : bar->actions()) {
        QWidget* w = bar->widgetForAction(a);
        if (!w || a->isSeparator())
            continue;
        if (qobject_cast<QToolButton*>(w))
            w->setFocusPolicy(Qt::TabFocus);
        if (previous)
            setTabOrder(previous, w);
        previous = w;
    }
    setTabOrder(previous, d->textEdit);
    setFocusProxy(d->textEdit);
}

void OrvTextEditor2::connectActions()
{
    const auto charAction = [this](Action a, auto apply) {
        connect(d->actions[a], &QAction::triggered, this, [this, apply](bool checked) {
            QTextCharFormat format;
            apply(format, checked);
            mergeCharFormat(format);
        });
    };
    charAction(Bold, [](QTextCharFormat& f, bool on) { f.setFontWeight(on ? QFont::Bold : QFont::Normal); });
    charAction(Italic, [](QTextCharFormat& f, bool on) { f.setFontItalic(on); });
    charAction(Underline, [](QTextCharFormat& f, bool on) { f.setFontUnderline(on); });
    charAction(StrikeOut, [](QTextCharFormat& f, bool on) { f.setFontStrikeOut(on); });
    connect(d->actions[TextColor], &QAction::triggered, this, &OrvTextEditor2::chooseTextColor);
    connect(d->actions[FontGrow], &QAction::triggered, this, [this] { stepFontSize(1); });
    connect(d->actions[FontShrink], &QAction::triggered, this, [this] { stepFontSize(-1); });
    const std::array<std::pair<Action, Qt::Alignment>, 4> alignments{{{AlignLeft, Qt::AlignLeft | Qt::AlignAbsolute},
                                                                      {AlignCenter, Qt::AlignHCenter},
                                                                      {AlignRight, Qt::AlignRight | Qt::AlignAbsolute},
                                                                      {AlignJustify, Qt::AlignJustify}}};
    for (const auto& [action, alignment] : alignments)
        connect(d->actions[action], &QAction::triggered, this,
                [this, alignment = alignment] { setAlignment(alignment); });
    connect(d->actions[BulletList], &QAction::triggered, this, [this] { toggleList(false); });
    connect(d->actions[NumberedList], &QAction::triggered, this, [this] { toggleList(true); });
    for (int level = 0; level <= 3; ++level)
        connect(d->actions[NormalText + level], &QAction::triggered, this, [this, level] { setHeadingLevel(level); });
    connect(d->actions[Undo], &QAction::triggered, this, [this] {
        if (!d->textEdit->isReadOnly())
            d->textEdit->undo();
    });
    connect(d->actions[Redo], &QAction::triggered, this, [this] {
        if (!d->textEdit->isReadOnly())
            d->textEdit->redo();
    });
    connect(d->actions[BackgroundColor], &QAction::triggered, this, &OrvTextEditor2::chooseBackgroundColor);
    connect(d->actions[FocusToolBar], &QAction::triggered, this, [this] {
        for (QAction* a : d->toolBar->actions()) {
            QWidget* w = d->toolBar->widgetForAction(a);
            if (w && w->isVisible() && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus)) {
                w->setFocus(Qt::ShortcutFocusReason);
                return;
            }
        }
    });

    connect(d->fontSize, &QComboBox::textActivated, this, [this](const QString& text) {
        bool ok = false;
        const qreal size = text.toDouble(&ok);
        if (ok && size > 0)
            setFontPointSize(size);
        d->textEdit->setFocus();
    });
    connect(d->listStyle, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        setListStyle(QTextListFormat::Style(d->listStyle->itemData(index).toInt()));
        d->textEdit->setFocus();
    });
    connect(d->blockStyle, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        setHeadingLevel(d->blockStyle->itemData(index).toInt());
        d->textEdit->setFocus();
    });

    QTextDocument* document = d->textEdit->document();
    connect(d->textEdit, &QTextEdit::currentCharFormatChanged, this, &OrvTextEditor2::updateCharActions);
    connect(d->textEdit, &QTextEdit::cursorPositionChanged, this, &OrvTextEditor2::updateBlockActions);
    connect(document, &QTextDocument::undoAvailable, this, &OrvTextEditor2::updateEnabled);
    connect(document, &QTextDocument::redoAvailable, this, &OrvTextEditor2::updateEnabled);
}

OrvTextEditor2::~OrvTextEditor2() = default;

QTextEdit* OrvTextEditor2::textEdit() const
{
    return d->textEdit;
}

QToolBar* OrvTextEditor2::toolBar() const
{
    return d->toolBar;
}

QAction* OrvTextEditor2::action(Action which) const
{
    return which >= 0 && which < OrvTextEditor2Private::ActionCount ? d->actions[which] : nullptr;
}

QColor OrvTextEditor2::backgroundColor() const
{
    return d->background.isValid() ? d->background : d->textEdit->palette().color(QPalette::Base);
}

bool OrvTextEditor2::isBackgroundColorEnabled() const
{
    return d->backgroundEnabled;
}

void OrvTextEditor2::enableBackgroundColor(bool enable)
{
    d->backgroundEnabled = enable;
    // An invisible action also gives up its shortcut.
    d->actions[BackgroundColor]->setVisible(enable);
}

void OrvTextEditor2::setInitialBackgroundColor(const QColor& color)
{
    d->background = color;
    applyBackground();
}

void OrvTextEditor2::setBackgroundColor(const QColor& color)
{
    if (!color.isValid() || color == d->background)
        return;
    d->background = color;
    applyBackground();
    Q_EMIT backgroundColorChanged(color);
}

void OrvTextEditor2::applyBackground()
{
    if (d->background.isValid()) {
        QPalette palette = d->textEdit->palette();
        palette.setColor(QPalette::Base, d->background);
        d->textEdit->setPalette(palette);
    } else {
        d->textEdit->setPalette(QPalette());
    }
    d->actions[BackgroundColor]->setIcon(d->swatchIcon(backgroundColor(), false, this));
}

QColor OrvTextEditor2::chooseColor(const QColor& current, const QString& title)
{
    return QColorDialog::getColor(current, this, title);
}

void OrvTextEditor2::chooseTextColor()
{
    if (d->textEdit->isReadOnly())
        return;
    const QColor color = chooseColor(d->textEdit->currentCharFormat().foreground().color(), tr("Text Colour"));
    if (color.isValid())
        setTextColor(color);
}

void OrvTextEditor2::chooseBackgroundColor()
{
    if (d->textEdit->isReadOnly() || !d->backgroundEnabled)
        return;
    setBackgroundColor(chooseColor(backgroundColor(), tr("Background Colour")));
}

void OrvTextEditor2::mergeCharFormat(const QTextCharFormat& format)
{
    if (d->textEdit->isReadOnly())
        return;
    // Applies to the selection, or else to the text typed next.
    d->textEdit->mergeCurrentCharFormat(format);
    updateCharActions(d->textEdit->currentCharFormat());
}

void OrvTextEditor2::setFontPointSize(qreal size)
{
    if (size <= 0)
        return;
    QTextCharFormat format;
    format.setFontPointSize(size);
    mergeCharFormat(format);
}

void OrvTextEditor2::setTextColor(const QColor& color)
{
    if (!color.isValid())
        return;
    QTextCharFormat format;
    format.setForeground(color);
    mergeCharFormat(format);
}

void OrvTextEditor2::stepFontSize(int direction)
{
    const qreal current = d->fontSize->currentText().toDouble();
    const QList<int>& sizes = d->standardSizes;
    if (direction > 0) {
        const auto it = std::upper_bound(sizes.cbegin(), sizes.cend(), current);
        if (it != sizes.cend())
            setFontPointSize(*it);
    } else {
        const auto it = std::lower_bound(sizes.cbegin(), sizes.cend(), current);
        if (it != sizes.cbegin())
            setFontPointSize(*(it - 1));
    }
}

void OrvTextEditor2::setAlignment(Qt::Alignment alignment)
{
    if (d->textEdit->isReadOnly())
        return;
    d->textEdit->setAlignment(alignment);
    updateBlockActions();
}

void OrvTextEditor2::setListStyle(QTextListFormat::Style style)
{
    if (d->textEdit->isReadOnly())
        return;
    QTextCursor cursor = d->textEdit->textCursor();
    QTextDocument* document = d->textEdit->document();
    const QTextBlock first = document->findBlock(cursor.selectionStart());
    const QTextBlock last = document->findBlock(cursor.selectionEnd());
    cursor.beginEditBlock();
    if (style == QTextListFormat::ListStyleUndefined) {
        // Not QTextList::remove: that indents the former item by the list's
        // indent, leaving the text where the list had it.
        for (QTextBlock block = first; block.isValid(); block = block.next()) {
            if (block.textList()) {
                QTextBlockFormat format = block.blockFormat();
                format.setObjectIndex(-1);
                QTextCursor(block).setBlockFormat(format);
            }
            if (block == last)
                break;
        }
    } else if (QTextList* list = first.textList(); list && list == last.textList()) {
        // Inside one list: restyle the whole list rather than split it.
        QTextListFormat format = list->format();
        format.setStyle(style);
        list->setFormat(format);
    } else {
        QTextListFormat format;
        if (QTextList* current = first.textList())
            format = current->format();
        format.setStyle(style);
        cursor.createList(format);
    }
    cursor.endEditBlock();
    if (isBulletStyle(style))
        d->lastBullet = style;
    else if (isNumberedStyle(style))
        d->lastNumbered = style;
    updateBlockActions();
}

void OrvTextEditor2::toggleList(bool numbered)
{
    const QTextList* list = d->textEdit->textCursor().currentList();
    const int style = list ? list->format().style() : 0;
    if (numbered ? isNumberedStyle(style) : isBulletStyle(style))
        setListStyle(QTextListFormat::ListStyleUndefined);
    else
        setListStyle(numbered ? d->lastNumbered : d->lastBullet);
}

void OrvTextEditor2::setHeadingLevel(int level)
{
    if (d->textEdit->isReadOnly() || level < 0 || level > 3)
        return;
    QTextCursor cursor = d->textEdit->textCursor();
    QTextDocument* document = d->textEdit->document();
    const QTextBlock last = document->findBlock(cursor.selectionEnd());
    QTextBlockFormat blockFormat;
    blockFormat.setHeadingLevel(level);
    QTextCharFormat charFormat;
    charFormat.setFontWeight(level > 0 ? QFont::Bold : QFont::Normal);
    charFormat.setProperty(QTextFormat::FontSizeAdjustment, level > 0 ? 4 - level : 0);
    cursor.beginEditBlock();
    for (QTextBlock block = document->findBlock(cursor.selectionStart()); block.isValid(); block = block.next()) {
        // Turning a normal paragraph into a normal paragraph keeps its own
        // character formats; only a former heading loses its heading look.
        const bool wasHeading = block.blockFormat().headingLevel() > 0;
        QTextCursor blockCursor(block);
        blockCursor.mergeBlockFormat(blockFormat);
        if (level > 0 || wasHeading) {
            blockCursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
            blockCursor.mergeCharFormat(charFormat);
            blockCursor.mergeBlockCharFormat(charFormat);
        }
        if (block == last)
            break;
    }
    cursor.endEditBlock();
    updateBlockActions();
    updateCharActions(d->textEdit->currentCharFormat());
}

void OrvTextEditor2::updateCharActions(const QTextCharFormat& format)
{
    d->actions[Bold]->setChecked(format.fontWeight() > QFont::Medium);
    d->actions[Italic]->setChecked(format.fontItalic());
    d->actions[Underline]->setChecked(format.fontUnderline());
    d->actions[StrikeOut]->setChecked(format.fontStrikeOut());
    qreal size = format.fontPointSize();
    if (size <= 0)
        size = d->textEdit->document()->defaultFont().pointSizeF();
    if (size > 0 && !d->fontSize->hasFocus())
        d->fontSize->setEditText(QString::number(size));
    const QColor color = format.hasProperty(QTextFormat::ForegroundBrush)
                             ? format.foreground().color()
                             : d->textEdit->palette().color(QPalette::Text);
    if (color != d->textColorShown) {
        d->textColorShown = color;
        d->actions[TextColor]->setIcon(d->swatchIcon(color, true, this));
    }
}

void OrvTextEditor2::updateBlockActions()
{
    const QTextCursor cursor = d->textEdit->textCursor();
    const Qt::Alignment alignment = cursor.blockFormat().alignment() & Qt::AlignHorizontal_Mask;
    if (alignment & Qt::AlignHCenter)
        d->actions[AlignCenter]->setChecked(true);
    else if (alignment & Qt::AlignJustify)
        d->actions[AlignJustify]->setChecked(true);
    else if (alignment & Qt::AlignRight)
        d->actions[AlignRight]->setChecked(true);
    else
        d->actions[AlignLeft]->setChecked(true);

    const QTextList* list = cursor.currentList();
    const int style = list ? list->format().style() : 0;
    d->actions[BulletList]->setChecked(isBulletStyle(style));
    d->actions[NumberedList]->setChecked(isNumberedStyle(style));
    d->listStyle->setCurrentIndex(d->listStyle->findData(style));

    const int level = cursor.blockFormat().headingLevel();
    if (level >= 0 && level <= 3)
        d->actions[NormalText + level]->setChecked(true);
    d->blockStyle->setCurrentIndex(d->blockStyle->findData(level));
}

void OrvTextEditor2::updateEnabled()
{
    const bool editable = !d->textEdit->isReadOnly();
    for (int i = 0; i < OrvTextEditor2Private::ActionCount; ++i)
        d->actions[i]->setEnabled(editable || i == FocusToolBar);
    d->actions[Undo]->setEnabled(editable && d->textEdit->document()->isUndoAvailable());
    d->actions[Redo]->setEnabled(editable && d->textEdit->document()->isRedoAvailable());
}

bool OrvTextEditor2::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->textEdit && event->type() == QEvent::ReadOnlyChange) {
        updateEnabled();
    } else if (watched == d->toolBar && event->type() == QEvent::KeyPress &&
               static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        d->textEdit->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void OrvTextEditor2::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        d->textColorShown = QColor();
        updateCharActions(d->textEdit->currentCharFormat());
        applyBackground();
    }
}

void OrvTextEditor2::retranslate()
{
    const auto label = [this](Action a, const QString& text, const QString& iconText = QString()) {
        QAction* action = d->actions[a];
        action->setText(text);
        action->setIconText(iconText.isEmpty() ? text : iconText);
        const QKeySequence key = action->shortcut();
        action->setToolTip(key.isEmpty() ? text : tr("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    };
    label(Bold, tr("Bold"), tr("B"));
    label(Italic, tr("Italic"), tr("I"));
    label(Underline, tr("Underline"), tr("U"));
    label(StrikeOut, tr("Strike Through"), tr("S"));
    label(TextColor, tr("Text Colour"));
    label(FontGrow, tr("Larger Font"));
    label(FontShrink, tr("Smaller Font"));
    label(AlignLeft, tr("Align Left"), tr("L"));
    label(AlignCenter, tr("Centre"), tr("C"));
    label(AlignRight, tr("Align Right"), tr("R"));
    label(AlignJustify, tr("Justify"), tr("J"));
    label(BulletList, tr("Bullet List"), tr("•"));
    label(NumberedList, tr("Numbered List"), tr("1."));
    label(NormalText, tr("Normal Text"));
    label(Heading1, tr("Heading 1"));
    label(Heading2, tr("Heading 2"));
    label(Heading3, tr("Heading 3"));
    label(Undo, tr("Undo"), tr("↶"));
    label(Redo, tr("Redo"), tr("↷"));
    label(BackgroundColor, tr("Background Colour"));
    label(FocusToolBar, tr("Go to Tool Bar"));

    d->toolBar->setWindowTitle(tr("Formatting"));
    d->textEdit->setAccessibleName(tr("Text"));
    d->fontSize->setToolTip(tr("Font size in points"));
    d->listStyle->setToolTip(tr("List style"));
    d->blockStyle->setToolTip(tr("Paragraph style"));
    const QStringList listTexts{tr("No list"),         tr("Bullets •"),        tr("Bullets ◦"),
                                tr("Bullets ▪"),       tr("Numbers 1, 2, 3"),  tr("Letters a, b, c"),
                                tr("Letters A, B, C"), tr("Roman i, ii, iii"), tr("Roman I, II, III")};
    for (int i = 0; i < listTexts.size(); ++i)
        d->listStyle->setItemText(i, listTexts.at(i));
    for (int level = 0; level <= 3; ++level) {
        const QAction* action = d->actions[NormalText + level];
        d->blockStyle->setItemText(level, action->text());
        d->blockStyle->setItemData(level, action->toolTip(), Qt::ToolTipRole);
    }
}

OrvTextEditor2::Format OrvTextEditor2::formatForFileName(const QString& fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix == QLatin1String("md") || suffix == QLatin1String("markdown"))
        return Markdown;
    if (suffix == QLatin1String("html") || suffix == QLatin1String("htm"))
        return Html;
    if (suffix == QLatin1String("txt"))
        return PlainText;
    if (suffix == QLatin1String("odt"))
        return OpenDocument;
    return Auto;
}

bool OrvTextEditor2::fail(const char* operation, const QString& message, QString* errorMessage) const
{
    qCWarning(lcTextEditors).noquote()
        << QStringLiteral("OrvTextEditor2::%1: %2").arg(QLatin1String(operation), message);
    if (errorMessage)
        *errorMessage = message;
    return false;
}

bool OrvTextEditor2::load(const QString& fileName, QString* errorMessage)
{
    const QFileInfo info(fileName);
    const QString shown = QDir::toNativeSeparators(fileName);
    if (!info.exists())
        return fail("load", tr("The file \"%1\" does not exist.").arg(shown), errorMessage);
    if (info.isDir())
        return fail("load", tr("\"%1\" is a folder, not a file.").arg(shown), errorMessage);
    const Format format = formatForFileName(fileName);
    if (format == OpenDocument)
        return fail("load", tr("OpenDocument text can be saved but not loaded: \"%1\".").arg(shown), errorMessage);
    if (format == Auto)
        return fail("load",
                    tr("The file \"%1\" has an unknown format. Supported are Markdown (.md), HTML (.html) and plain "
                       "text (.txt).")
                        .arg(shown),
                    errorMessage);

    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return fail("load", tr("The file \"%1\" cannot be read: %2").arg(shown, file.errorString()), errorMessage);
    const QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return fail("load", tr("The file \"%1\" cannot be read: %2").arg(shown, file.errorString()), errorMessage);
    // Stateless: a sequence cut off at the end of the file is an error too.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    const QString text = decoder.decode(data);
    if (decoder.hasError())
        return fail("load", tr("The file \"%1\" is not valid UTF-8 text.").arg(shown), errorMessage);

    // Relative images and links resolve against the file's folder.
    d->textEdit->document()->setBaseUrl(QUrl::fromLocalFile(info.absolutePath() + QLatin1Char('/')));
    switch (format) {
    case Markdown:
        d->textEdit->setMarkdown(text);
        break;
    case Html:
        d->textEdit->setHtml(text);
        break;
    default:
        d->textEdit->setPlainText(text);
        break;
    }
    d->textEdit->document()->setModified(false);
    return true;
}

bool OrvTextEditor2::save(const QString& fileName, Format format, QString* errorMessage) const
{
    const QString shown = QDir::toNativeSeparators(fileName);
    if (format == Auto)
        format = formatForFileName(fileName);
    if (format == Auto)
        return fail("save", tr("The format for \"%1\" is unknown. Use the suffix .md, .html, .txt or .odt.").arg(shown),
                    errorMessage);

    const QTextDocument* document = d->textEdit->document();
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return fail("save", tr("The file \"%1\" cannot be written: %2").arg(shown, file.errorString()), errorMessage);
    QByteArray bytes;
    bool written = true;
    if (format == OpenDocument) {
        // The ODF writer closes its device when done, which a QSaveFile
        // forbids: write into memory first.
        QBuffer buffer(&bytes);
        QTextDocumentWriter writer(&buffer, "odf");
        written = writer.write(document);
    } else {
        const QString text = format == Markdown ? document->toMarkdown()
                             : format == Html   ? document->toHtml()
                                                : document->toPlainText();
        bytes = text.toUtf8();
    }
    written = written && file.write(bytes) == bytes.size();
    if (!written) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return fail("save", tr("The file \"%1\" cannot be written: %2").arg(shown, reason), errorMessage);
    }
    if (!file.commit())
        return fail("save", tr("The file \"%1\" cannot be written: %2").arg(shown, file.errorString()), errorMessage);
    return true;
}

} // namespace OrvWidgets
