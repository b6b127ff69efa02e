// A screen with controls of all kinds over the table of groups.
#pragma once

#include "tests/screens/ScreenFixture.h"

namespace norvane::screens
{

inline const test::ShownBox codeExists{u"This item code already exists!\rPlease try again"_s,
                                       u"Data Error Code3022"_s, BoxIcon::Critical};

inline const QByteArray allButtons =
    "[visiblekeys]\nShowAddrecord=YES\nShowpreviousrecord=YES\nShownextrecord=YES\nShowdeleterecord=YES\n"
    "Showprintrecord=YES\n[CrystalReport]\nCrystalReportFile=groups.rpt\nCrystalReportTitle=Groups\n";

class OptionFormFixture : public test::ScreenFixture
{
protected:
    OptionFormFixture()
    {
        screen("[Database]\ntable=GROUPS\nIndex1=groupno\nIndex2=byname\n" + allButtons +
               "[Field1]\nControlType=IntegerNumberControl\nVisible=True\nDatafield=GROUPNO\nMaxvalue=99\n"
               "[Field2]\nControlType=TextControl\nY=600\nVisible=True\nDatafield=description\nMaxvalue=12\n"
               "[Field3]\nControlType=DecimalNumberControl\nY=1100\nVisible=True\nDatafield=PRICE\nMaxvalue="
               "99.99\n"
               "[Field4]\nControlType=ComboControl\nY=1600\nVisible=True\nDataField=LINK\nList=1;One,2;Two,3;"
               "Three\n"
               "[Field5]\nControlType=CheckControl\nY=2100\nVisible=True\nDatafield=TAX1\n"
               "[Field6]\nControlType=FindControl\nY=2600\nVisible=True\n"
               "[Field7]\nControlType=FindControl\nY=3100\nVisible=True\n"
               "[Field8]\nControlType=TextControl\nY=3600\nVisible=True\nDatafield=LONGLINK\n"
               "[Field9]\nControlType=CheckControl\nY=4100\nVisible=True\nDatafield=FLAG\n"
               "[Field10]\nControlType=DecimalNumberControl\nY=4600\nVisible=True\nDatafield=RATE\nReadOnly="
               "True\n");
        show(open());
    }
    void show(Form opened)
    {
        form = std::move(opened);
        QObject::connect(form.get(), &OptionForm::noticeChanged, form.get(),
                         [this](const QString& text) { m_notice = text.toStdString(); });
    }
    void undo()
    {
        QApplication::setActiveWindow(form.get()); // a dialog leaves none on this platform
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : form.get(), Qt::Key_Z, Qt::ControlModifier);
    }
    [[nodiscard]] std::string name() const { return text(form, "TextControl_1"); }
    /// Presses a button. @return what the status bar says then.
    std::string toldBy(const char* button)
    {
        press(form, button);
        return m_notice;
    }
    [[nodiscard]] std::string groupNames() const
    {
        return rows("select DESCRIPTION from GROUPS order by GROUPNO");
    }
    [[nodiscard]] std::string group(int number) const
    {
        const QByteArray sql =
            "select DESCRIPTION, PRICE, LINK, LONGLINK, TAX1, FLAG, RATE from GROUPS where GROUPNO = ";
        return rows(sql + QByteArray::number(number));
    }

    Form form;
    std::string m_notice; ///< what the status bar says
};

} // namespace norvane::screens
