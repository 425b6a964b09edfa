// The numbers of every resource, shared by the program and its resource libraries. The dashboard
// and the libraries of other languages rely on them, so a number never changes its meaning.
// Texts and controls are numbered independently of each other: a text 1201 and a control 1201
// have nothing in common.
#pragma once

// Texts: message boxes and general words.
#define IDS_LANGUAGE_NAME 378 // The language's own name for itself; shown in the language list.
#define IDS_QUIT_CAPTION 613
#define IDS_QUIT_QUESTION 614
#define IDS_BROWSE 856
#define IDS_CLEAR 859
#define IDS_COLOUR_NONE 915

// Texts: the page list.
#define IDS_PAGE_GENERAL 617
#define IDS_PAGE_CALENDAR 618
#define IDS_PAGE_TASKS 619
#define IDS_PAGE_SPECIAL_EVENTS 620
#define IDS_PAGE_FONTS 621
#define IDS_PAGE_COLOURS 622
#define IDS_PAGE_PIM 624
#define IDS_PAGE_TABS 625
#define IDS_PAGE_CATEGORY 626
#define IDS_PAGE_NOTES 1259
#define IDS_PAGE_MESSAGES 1260
#define IDS_PAGE_CONTACTS 1432

// Texts: tabs of the pages. A text that serves several pages has a general name.
#define IDS_TAB_GENERAL 635
#define IDS_TAB_CALENDAR_APPOINTMENTS 636
#define IDS_TAB_CALENDAR_TASKS 637
#define IDS_TAB_CALENDAR_DAY_TITLES 638
#define IDS_TAB_CALENDAR_ICONS 639
#define IDS_TAB_CALENDAR_MONTH 640
#define IDS_TAB_CALENDAR_MAIL 641
#define IDS_TAB_MISCELLANEOUS 642
#define IDS_TAB_PIM_APPLICATION 916
#define IDS_TAB_PIM_OPTIONS 917
#define IDS_TAB_FONTS_GENERAL 929
#define IDS_TAB_SEVENTS_DISPLAY 1042
#define IDS_TAB_SEVENTS_FILTERS 1043
#define IDS_TAB_TASKS_GENERAL 1061
#define IDS_TAB_TITLES 1062 // Group titles: shared by Tasks, Notes, Messages and Special events.
#define IDS_TAB_TASKS_ICONS 1063
#define IDS_TAB_TASKS_DATES 1065
#define IDS_TAB_COLOURS_ITEMS 1236
#define IDS_TAB_COLOURS_SCHEMES 1237
#define IDS_TAB_GENERAL_DISPLAY 1247
#define IDS_TAB_GENERAL_DPAD 1348
#define IDS_TAB_TABS_DEFAULT 1402
#define IDS_TAB_CATEGORY_CATEGORIES 1428
#define IDS_TAB_CATEGORY_FILTERS 1431
#define IDS_TAB_FONTS_ITEM_COLOURS 1434 // While the general font serves all items.
#define IDS_TAB_FONTS_ITEM_FONTS 1435   // While each item has a font of its own.
#define IDS_TAB_GENERAL_APPEARANCE 1491
#define IDS_TAB_NOTES_FOLDERS 1492
#define IDS_TAB_NOTES_FILES 1494
#define IDS_TAB_CALENDAR_WEATHER 1530
#define IDS_TAB_TABS_ORDER 1637
#define IDS_TAB_CONTACTS_DISPLAY 2000
#define IDS_TAB_CONTACTS_ACTIONS 2001
#define IDS_TAB_CONTACTS_ALPHABETS 2002

// Texts: icons beside the dashboard's items, and the labels of their choosers.
#define IDS_APPOINTMENT_LEFT_ICON_1 645
#define IDS_APPOINTMENT_LEFT_ICON_2 646
#define IDS_TASK_LEFT_ICON_1 647
#define IDS_TASK_LEFT_ICON_2 648
#define IDS_APPOINTMENT_RIGHT_ICONS 649
#define IDS_ICON_NOTE 650
#define IDS_ICON_REMINDER 651
#define IDS_ICON_IMPORTANCE 652
#define IDS_ICON_RECURRING 653
#define IDS_ICON_PRIVATE 654
#define IDS_ICON_LINK 655
#define IDS_ICON_REGENERATED 656
#define IDS_TASK_RIGHT_ICONS 1210
#define IDS_ICON_ATTENDEES 1211
#define IDS_ICON_CATEGORY 1212
#define IDS_ICON_NONE 2060

// Texts: the General page.
#define IDS_GENERAL_ON_CLICK_OPEN 115
#define IDS_GENERAL_ON_CLICK_MENU 116
#define IDS_GENERAL_ON_CLICK_SELECT 998
#define IDS_GENERAL_SKIN_PATH 988
#define IDS_GENERAL_REMOVE_SEPARATING_LINE 989
#define IDS_GENERAL_FILTER_ALIGN 994
#define IDS_GENERAL_REMOVE_TABS_BAR 996
#define IDS_GENERAL_ON_CLICK 997
#define IDS_GENERAL_ON_DOUBLE_CLICK 999
#define IDS_GENERAL_ON_DOUBLE_CLICK_NOTHING 1000
#define IDS_GENERAL_ON_DOUBLE_CLICK_OPEN 1001
#define IDS_GENERAL_ON_DOUBLE_CLICK_MENU 1002
#define IDS_GENERAL_HEIGHT 1003
#define IDS_GENERAL_HEIGHT_LANDSCAPE 1004
#define IDS_GENERAL_LANGUAGE 1005
#define IDS_GENERAL_SOUND 1007
#define IDS_GENERAL_DOUBLE_CLICK_SCROLL 1008
#define IDS_GENERAL_FULL_SCROLLING 1009
#define IDS_ALIGN_LEFT 1025
#define IDS_ALIGN_CENTRE 1026
#define IDS_ALIGN_RIGHT 1027
#define IDS_GENERAL_REMOVE_HIGHLIGHT 1028
#define IDS_GENERAL_VGA_MODE 1029
#define IDS_GENERAL_GOOFY_MODE 1032
#define IDS_GENERAL_THIN_LINES 1033
#define IDS_GENERAL_INDENT_ITEMS 1248
#define IDS_GENERAL_REMOVE_SETTINGS_BUTTON 1249
#define IDS_GENERAL_EXCLUSIVE_DPAD 1251
#define IDS_GENERAL_LOADING_DELAY 1252
#define IDS_GENERAL_DPAD_ENABLED 1349
#define IDS_GENERAL_DPAD_MODE 1350
#define IDS_GENERAL_DPAD_MODE_ITEMS 1351
#define IDS_GENERAL_DPAD_MODE_SCROLL 1352
#define IDS_GENERAL_DPAD_COMPLETE 1353
#define IDS_GENERAL_DPAD_COMPLETE_NOTHING 1354
#define IDS_GENERAL_DPAD_COMPLETE_MENU 1355
#define IDS_GENERAL_DPAD_COMPLETE_OPEN 1356
#define IDS_GENERAL_DPAD_DOUBLE_CLICK_TAB 1357
#define IDS_GENERAL_DPAD_SCROLLING 1358
#define IDS_GENERAL_DPAD_SCROLL_LINE 842
#define IDS_GENERAL_DPAD_SCROLL_ITEM 843
#define IDS_GENERAL_DPAD_SCROLL_PAGE 844
#define IDS_GENERAL_AUTO_HEIGHT 1490

// Texts: captions of the dashboard's own tabs.
#define IDS_DASHBOARD_TAB_TASKS 1416
#define IDS_DASHBOARD_TAB_NOTES 1417
#define IDS_DASHBOARD_TAB_CONTACTS 1418
#define IDS_DASHBOARD_TAB_MAIL 1419
#define IDS_DASHBOARD_TAB_SPECIAL_EVENTS 1420
#define IDS_DASHBOARD_TAB_CALENDAR 1436

// Texts: the About window and the folder dialog.
#define IDS_ABOUT_TITLE 2010
#define IDS_ABOUT_VERSION 2011 // The version number follows it.
#define IDS_ABOUT_DESCRIPTION 2012
#define IDS_ABOUT_RIGHTS 2013
#define IDS_OK 2014
#define IDS_FOLDER_UP 2020
#define IDS_FOLDER_EMPTY 2021
#define IDS_CANCEL 2022

// Texts: pages without settings of their own yet.
#define IDS_PAGE_OUTLINE 2030

// Menus of the language libraries.
#define IDM_MAIN 153

// Commands of the main window; 1 and 2 are the platform's IDOK and IDCANCEL.
#define IDC_ABOUT 523
#define IDC_OPEN_OPTIONS 526 // The dashboard's: opens OV Options, which drops it from its own menu.
#define IDC_EXPORT_BACKUP 1134
#define IDC_IMPORT_BACKUP 1135

// Bitmaps of the display libraries.
#define IDB_MENU_BAR 158  // Two images of 16 units: 0 cancel, 1 ok. Mask COLORREF 0xC6CFDE.
#define IDB_PAGE_LIST 159 // Twelve images of 32 units, one per page. Mask COLORREF 0x00FF00.

// Resources of the program itself.
#define IDI_PROGRAM 1557
