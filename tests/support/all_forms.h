#pragma once

#include "support/program.h"
#include "ui/forms/form_window.h"
#include "windows/about_window.h"
#include "windows/article_window.h"
#include "windows/find_window.h"
#include "windows/main_window.h"
#include "windows/movie_window.h"
#include "windows/page_window.h"
#include "windows/play_list_window.h"
#include "windows/slide_window.h"
#include "windows/splash.h"

#include <QTest>

namespace torvik {

using namespace Qt::StringLiterals;

/// A data row for each form, named like it.
inline void AddRowForEachForm()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"Form2", "Form1", "txtForm", "frmSlide", "frmScroll", "frmMovie", "frmSSPhoto",
                             "frmAbout", "frmFind"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

/// The form of that name, loaded; only Form2 stands without the main window.
inline Form& FormNamed(Program& program, const QString& name)
{
    if (name == u"Form2"_s)
        return *Form2;
    program.PassSplash();
    if (name == u"txtForm"_s)
        return *txtForm;
    if (name == u"frmSlide"_s)
        return *frmSlide;
    if (name == u"frmScroll"_s)
        return *frmScroll;
    if (name == u"frmMovie"_s)
        return *frmMovie;
    if (name == u"frmSSPhoto"_s)
        return *frmSSPhoto;
    if (name == u"frmFind"_s)
        return *frmFind;
    if (name == u"frmAbout"_s)
        return *frmAbout;
    return *Form1;
}

/// A form's widgets that have a name: controls and their parts, without Qt's insides.
inline QList<QWidget*> NamedWidgets(Form& form)
{
    QList<QWidget*> named;
    for (QWidget* widget : form.Host().findChildren<QWidget*>()) {
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_"_s))
            named.append(widget);
    }
    return named;
}

} // namespace torvik
