#include "ui/list_items.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/owner_window.h"
#include "tests/support/window_support.h"

namespace {
constexpr int kList = 10;

class ListItems : public testing::Test {
  protected:
    void SetUp() override {
        parent_ = CreateOwner();
        list_ = CreateList(parent_, kList, nullptr, 20);
        MoveWindow(list_, 0, 0, Scale(120), ScaleY(62), FALSE);
        AddTickBoxes(list_);
    }
    void TearDown() override { DestroyWindow(parent_); }

    std::wstring TextOfRow(int row) const {
        wchar_t text[2048] = L"";
        ListView_GetItemText(list_, row, 0, text, 2048);
        return text;
    }
    HWND parent_ = nullptr;
    HWND list_ = nullptr;
};

TEST_F(ListItems, MovesTheSelectedRowWithAllItHas) {
    AddRow(list_, L"first", 7);
    AddRow(list_, std::wstring(1023, L'x').c_str(), 8);
    AddRow(list_, L"last", 0xFFFFFFFF);
    TickRow(list_, 1, true);
    SelectRow(list_, 1);

    MoveSelectedRow(parent_, list_, false);
    EXPECT_EQ(SelectedRow(list_), 2);
    EXPECT_EQ(FocusedRow(list_), 2);
    EXPECT_EQ(TextOfRow(2), std::wstring(1023, L'x'));
    EXPECT_EQ(RowData(list_, 2), 8u);
    EXPECT_TRUE(IsRowTicked(list_, 2));
    EXPECT_EQ(TextOfRow(1), L"last");
    EXPECT_EQ(RowData(list_, 1), 0xFFFFFFFFu);
    EXPECT_FALSE(IsRowTicked(list_, 1));

    MoveSelectedRow(parent_, list_, false);
    EXPECT_EQ(RowData(list_, 2), 8u) << "stays at the edge";
    for (int i = 0; i < 3; ++i)
        MoveSelectedRow(parent_, list_, true);
    EXPECT_EQ(RowData(list_, 0), 8u);
    EXPECT_EQ(RowData(list_, 1), 7u);
    EXPECT_EQ(SelectedRow(list_), 0);
}

TEST_F(ListItems, SaysThatNothingIsSelected) {
    AddRow(list_, L"only");
    SelectRow(list_, 0);
    ClearSelection(list_);
    EXPECT_EQ(FocusedRow(list_), -1);
    MessageBoxAnswer answer(IDOK);
    MoveSelectedRow(parent_, list_, true);
    EXPECT_EQ(answer.count, 1);
    EXPECT_EQ(TextOfRow(0), L"only");
}

TEST_F(ListItems, KeepsTheColumnWithinTheList) {
    const auto hasBar = [this](DWORD bar) {
        return (static_cast<DWORD>(GetWindowLong(list_, GWL_STYLE)) & bar) != 0;
    };
    for (int rows = 1; rows <= 4; ++rows) {
        AddRow(list_, L"row");
        FitColumn(list_);
        RECT client{};
        GetClientRect(list_, &client);
        EXPECT_EQ(SendMessage(list_, LVM_GETCOLUMNWIDTH, 0, 0), client.right);
        EXPECT_FALSE(hasBar(WS_HSCROLL));
        EXPECT_EQ(hasBar(WS_VSCROLL), rows == 4) << "three rows of 20 fit";
    }
}
} // namespace
