#pragma once

// The shell's form, built in code. Object names are part of the design:
// style sheets and lookups use them.

#include "orv_profile_button.h"
#include "orv_splitter.h"
#include "orv_tab_widget.h"
#include "orv_tool_bar_area.h"
#include "orv_tool_box.h"

#include <QCoreApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpacerItem>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Ui {

class OrvBaseLayoutWidget
{
public:
    QVBoxLayout* verticalLayout = nullptr;
    QWidget* topLayoutWidget = nullptr;
    QHBoxLayout* horizontalLayout = nullptr;
    QLabel* lbKivSplitterLeft = nullptr;
    QLabel* lbProjectLogo = nullptr;
    QVBoxLayout* verticalLayout_2 = nullptr;
    QHBoxLayout* horizontalLayout_2 = nullptr;
    QLabel* lbAppName = nullptr;
    QLabel* bulle0 = nullptr;
    QLabel* lbCurrentTime = nullptr;
    QSpacerItem* horizontalSpacer = nullptr;
    QHBoxLayout* horizontalLayout_4 = nullptr;
    QLabel* lbExerciseName = nullptr;
    QLabel* bullet1 = nullptr;
    QLabel* lbExercisePhase = nullptr;
    QLabel* bullet2 = nullptr;
    QLabel* lbExerciseStatus = nullptr;
    QLabel* bullet3 = nullptr;
    QLabel* lbExerciseTime = nullptr;
    QLabel* bullet4 = nullptr;
    QLabel* lbPartitionType = nullptr;
    QLabel* lbCustomTextBullet = nullptr;
    QLabel* lbCustomText = nullptr;
    QSpacerItem* horizontalSpacer_2 = nullptr;
    OrvWidgets::OrvToolBarArea* toolBar = nullptr;
    QFrame* line_2 = nullptr;
    QWidget* notificationLayoutWidget = nullptr;
    QHBoxLayout* horizontalLayout_3 = nullptr;
    QPushButton* pbDebug = nullptr;
    OrvWidgets::OrvProfileButton* profileButton = nullptr;
    QFrame* line = nullptr;
    OrvWidgets::OrvSplitter* masterSplitter = nullptr;
    OrvWidgets::OrvTabWidget* infoWidget = nullptr;
    OrvWidgets::OrvSplitter* mainSplitter = nullptr;
    OrvWidgets::OrvTabWidget* mainWidget = nullptr;
    OrvWidgets::OrvTabWidget* detailWidget = nullptr;
    OrvWidgets::OrvSplitter* rightSplitter = nullptr;
    QWidget* naviWidget = nullptr;
    QGridLayout* gridLayout = nullptr;
    QPushButton* pbPlanning = nullptr;
    QPushButton* pbExecution = nullptr;
    QPushButton* pbAfterAction = nullptr;
    QPushButton* pbSpecial = nullptr;
    QStackedWidget* stackedWidget = nullptr;
    OrvWidgets::OrvToolBox* naviActionsPlanning = nullptr;
    OrvWidgets::OrvToolBox* naviActionsExecution = nullptr;
    OrvWidgets::OrvToolBox* naviActionsAfterAction = nullptr;
    OrvWidgets::OrvToolBox* naviActionsSpecial = nullptr;
    OrvWidgets::OrvTabWidget* specialWidget = nullptr;

    void setupUi(QWidget* form)
    {
        form->setObjectName(QStringLiteral("OrvBaseLayoutWidget"));
        form->resize(1024, 768);
        verticalLayout = new QVBoxLayout(form);
        verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
        verticalLayout->setContentsMargins(0, 0, 0, 0);
        verticalLayout->setSpacing(0);

        // Top bar.
        topLayoutWidget = named(new QWidget(form), "topLayoutWidget");
        horizontalLayout = new QHBoxLayout(topLayoutWidget);
        horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
        horizontalLayout->setContentsMargins(0, 0, 5, 0);
        lbKivSplitterLeft = label(topLayoutWidget, "lbKivSplitterLeft");
        lbProjectLogo = label(topLayoutWidget, "lbProjectLogo");
        horizontalLayout->addWidget(lbKivSplitterLeft);
        horizontalLayout->addWidget(lbProjectLogo);

        verticalLayout_2 = new QVBoxLayout;
        verticalLayout_2->setObjectName(QStringLiteral("verticalLayout_2"));
        verticalLayout_2->setSpacing(2);
        horizontalLayout_2 = new QHBoxLayout;
        horizontalLayout_2->setObjectName(QStringLiteral("horizontalLayout_2"));
        lbAppName = label(topLayoutWidget, "lbAppName");
        bulle0 = bullet(topLayoutWidget, "bulle0");
        lbCurrentTime = label(topLayoutWidget, "lbCurrentTime");
        horizontalSpacer = new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
        horizontalLayout_2->addWidget(lbAppName);
        horizontalLayout_2->addWidget(bulle0);
        horizontalLayout_2->addWidget(lbCurrentTime);
        horizontalLayout_2->addItem(horizontalSpacer);
        verticalLayout_2->addLayout(horizontalLayout_2);

        horizontalLayout_4 = new QHBoxLayout;
        horizontalLayout_4->setObjectName(QStringLiteral("horizontalLayout_4"));
        lbExerciseName = label(topLayoutWidget, "lbExerciseName");
        bullet1 = bullet(topLayoutWidget, "bullet1");
        lbExercisePhase = label(topLayoutWidget, "lbExercisePhase");
        bullet2 = bullet(topLayoutWidget, "bullet2");
        lbExerciseStatus = label(topLayoutWidget, "lbExerciseStatus");
        bullet3 = bullet(topLayoutWidget, "bullet3");
        lbExerciseTime = label(topLayoutWidget, "lbExerciseTime");
        bullet4 = bullet(topLayoutWidget, "bullet4");
        lbPartitionType = label(topLayoutWidget, "lbPartitionType");
        lbCustomTextBullet = bullet(topLayoutWidget, "lbCustomTextBullet");
        lbCustomText = label(topLayoutWidget, "lbCustomText");
        horizontalSpacer_2 = new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
        for (QWidget* w : {static_cast<QWidget*>(lbExerciseName), static_cast<QWidget*>(bullet1),
                           static_cast<QWidget*>(lbExercisePhase), static_cast<QWidget*>(bullet2),
                           static_cast<QWidget*>(lbExerciseStatus), static_cast<QWidget*>(bullet3),
                           static_cast<QWidget*>(lbExerciseTime), static_cast<QWidget*>(bullet4),
                           static_cast<QWidget*>(lbPartitionType), static_cast<QWidget*>(lbCustomTextBullet),
                           static_cast<QWidget*>(lbCustomText)})
            horizontalLayout_4->addWidget(w);
        horizontalLayout_4->addItem(horizontalSpacer_2);
        verticalLayout_2->addLayout(horizontalLayout_4);
        horizontalLayout->addLayout(verticalLayout_2);

        toolBar = named(new OrvWidgets::OrvToolBarArea(topLayoutWidget), "toolBar");
        toolBar->setMinimumSize(40, 40);
        horizontalLayout->addWidget(toolBar);
        line_2 = named(new QFrame(topLayoutWidget), "line_2");
        line_2->setFrameShape(QFrame::VLine);
        line_2->setFrameShadow(QFrame::Sunken);
        horizontalLayout->addWidget(line_2);
        notificationLayoutWidget = named(new QWidget(topLayoutWidget), "notificationLayoutWidget");
        horizontalLayout_3 = new QHBoxLayout(notificationLayoutWidget);
        horizontalLayout_3->setObjectName(QStringLiteral("horizontalLayout_3"));
        horizontalLayout_3->setContentsMargins(0, 0, 0, 0);
        horizontalLayout->addWidget(notificationLayoutWidget);
        pbDebug = named(new QPushButton(topLayoutWidget), "pbDebug");
        horizontalLayout->addWidget(pbDebug);
        profileButton = named(new OrvWidgets::OrvProfileButton(topLayoutWidget), "profileButton");
        profileButton->setFixedSize(48, 48);
        horizontalLayout->addWidget(profileButton);
        // The bar keeps its natural height; the page areas take the rest.
        topLayoutWidget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        verticalLayout->addWidget(topLayoutWidget);

        line = named(new QFrame(form), "line");
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
        verticalLayout->addWidget(line);

        // Page areas. Children are created with their splitter as parent, so a tab
        // widget knows at construction which pane it is (the lower main pane gets
        // the minimise/maximise button).
        masterSplitter = splitter(form, "masterSplitter", Qt::Horizontal);
        infoWidget = tabWidget(masterSplitter, "infoWidget", QSize(100, 100));
        mainSplitter = splitter(masterSplitter, "mainSplitter", Qt::Vertical);
        mainWidget = tabWidget(mainSplitter, "mainWidget", QSize(100, 100));
        detailWidget = tabWidget(mainSplitter, "detailWidget", QSize(50, 50));
        rightSplitter = splitter(masterSplitter, "rightSplitter", Qt::Vertical);

        naviWidget = named(new QWidget(rightSplitter), "naviWidget");
        naviWidget->setMinimumSize(250, 100);
        rightSplitter->addWidget(naviWidget);
        gridLayout = new QGridLayout(naviWidget);
        gridLayout->setObjectName(QStringLiteral("gridLayout"));
        gridLayout->setContentsMargins(0, 0, 0, 0);
        gridLayout->setSpacing(2);
        pbPlanning = partButton(naviWidget, "pbPlanning");
        pbExecution = partButton(naviWidget, "pbExecution");
        pbAfterAction = partButton(naviWidget, "pbAfterAction");
        pbSpecial = partButton(naviWidget, "pbSpecial");
        gridLayout->addWidget(pbPlanning, 0, 0);
        gridLayout->addWidget(pbExecution, 0, 1);
        gridLayout->addWidget(pbAfterAction, 0, 2);
        gridLayout->addWidget(pbSpecial, 0, 3);
        stackedWidget = named(new QStackedWidget(naviWidget), "stackedWidget");
        naviActionsPlanning = toolBox(stackedWidget, "naviActionsPlanning");
        naviActionsExecution = toolBox(stackedWidget, "naviActionsExecution");
        naviActionsAfterAction = toolBox(stackedWidget, "naviActionsAfterAction");
        naviActionsSpecial = toolBox(stackedWidget, "naviActionsSpecial");
        gridLayout->addWidget(stackedWidget, 1, 0, 1, 4);
        specialWidget = tabWidget(rightSplitter, "specialWidget", QSize(100, 100));
        verticalLayout->addWidget(masterSplitter, 1);

        retranslateUi(form);
    }

    void retranslateUi(QWidget*)
    {
        pbPlanning->setText(QCoreApplication::translate("OrvBaseLayoutWidget", "Planning"));
        pbExecution->setText(QCoreApplication::translate("OrvBaseLayoutWidget", "Execution"));
        pbAfterAction->setText(QCoreApplication::translate("OrvBaseLayoutWidget", "After Action"));
        pbSpecial->setText(QCoreApplication::translate("OrvBaseLayoutWidget", "Special"));
        pbDebug->setToolTip(QCoreApplication::translate("OrvBaseLayoutWidget", "Debug functions"));
        lbCurrentTime->setToolTip(QCoreApplication::translate("OrvBaseLayoutWidget", "Current time"));
        lbExerciseTime->setToolTip(QCoreApplication::translate("OrvBaseLayoutWidget", "Exercise time"));
    }

private:
    template <typename T> static T* named(T* widget, const char* name)
    {
        widget->setObjectName(QLatin1String(name));
        return widget;
    }
    static QLabel* label(QWidget* parent, const char* name) { return named(new QLabel(parent), name); }
    static QLabel* bullet(QWidget* parent, const char* name)
    {
        QLabel* l = label(parent, name);
        l->setText(QString(QChar(0x2022)));
        return l;
    }
    static OrvWidgets::OrvSplitter* splitter(QWidget* parent, const char* name, Qt::Orientation orientation)
    {
        auto* s = named(new OrvWidgets::OrvSplitter(parent), name);
        s->setOrientation(orientation);
        s->setHandleWidth(10);
        s->setMinimumSize(100, 100);
        if (auto* parentSplitter = qobject_cast<QSplitter*>(parent))
            parentSplitter->addWidget(s);
        return s;
    }
    static OrvWidgets::OrvTabWidget* tabWidget(OrvWidgets::OrvSplitter* parent, const char* name, QSize minimum)
    {
        auto* t = new OrvWidgets::OrvTabWidget(parent, false);
        parent->addWidget(t); // before naming: the tab widget checks its pane in its constructor
        t->setObjectName(QLatin1String(name));
        t->setMinimumSize(minimum);
        return t;
    }
    static QPushButton* partButton(QWidget* parent, const char* name)
    {
        auto* b = named(new QPushButton(parent), name);
        b->setCheckable(true);
        return b;
    }
    static OrvWidgets::OrvToolBox* toolBox(QStackedWidget* parent, const char* name)
    {
        auto* box = named(new OrvWidgets::OrvToolBox(parent), name);
        box->setMinimumSize(100, 100);
        parent->addWidget(box);
        return box;
    }
};

} // namespace Ui
