#pragma once

#include "support/program.h"
#include "ui/forms/form_window.h"
#include "windows/form1.h"
#include "windows/form2.h"
#include "windows/frm_about.h"
#include "windows/frm_movie.h"
#include "windows/frm_scroll.h"
#include "windows/frm_slide.h"
#include "windows/frm_ss_photo.h"
#include "windows/txt_form.h"

#include <QTest>

namespace torvik {

/// A data row for each form, named like it.
inline void AddRowForEachForm()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"Form2", "Form1", "txtForm", "frmSlide", "frmScroll", "frmMovie", "frmSSPhoto", "frmAbout"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

/// The form of that name, loaded; only Form2 stands without the main window.
inline Form& FormNamed(Program& program, const QString& name)
{
    if (name == QStringLiteral("Form2"))
        return *Form2;
    program.PassSplash();
    if (name == QStringLiteral("txtForm"))
        return *txtForm;
    if (name == QStringLiteral("frmSlide"))
        return *frmSlide;
    if (name == QStringLiteral("frmScroll"))
        return *frmScroll;
    if (name == QStringLiteral("frmMovie"))
        return *frmMovie;
    if (name == QStringLiteral("frmSSPhoto"))
        return *frmSSPhoto;
    if (name == QStringLiteral("frmAbout"))
        return *frmAbout;
    return *Form1;
}

/// A form's widgets that have a name: controls and their parts, without the toolkit's insides.
inline QList<QWidget*> NamedWidgets(Form& form)
{
    QList<QWidget*> named;
    for (QWidget* widget : form.Host().findChildren<QWidget*>()) {
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(QStringLiteral("qt_")))
            named.append(widget);
    }
    return named;
}

} // namespace torvik
