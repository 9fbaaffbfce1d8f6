#pragma once

#include "documents/txt_form.h"
#include "local/frm_ss_photo.h"
#include "media/frm_movie.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "slides/frm_scroll.h"
#include "slides/frm_slide.h"
#include "support/program.h"
#include "ui/form_window.h"
#include "utilities/frm_about.h"

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
