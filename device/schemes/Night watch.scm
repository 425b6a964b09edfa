
[Software\Teskel\Orvane\Colors]
"ClrBreakingLineClr"=dword:8404992
"ClrPopupClrBg"=dword:4202496
"ClrPopupCurr"=dword:8437760
"ClrPopupHighlight"=dword:8404992
"ClrStatusBusy"=dword:16752704
"ClrStatusFree"=dword:8421504
"ClrStatusOutofoffice"=dword:16744640
"ClrStatusTentative"=dword:12632064
"GeneralFontColor"=dword:15790320
"HighlightBgClr"=dword:8404992
"HighlightTextClr"=dword:16777215
"SeperatorLineClr"=dword:8404992
"ShadowFontColor"=dword:0
"TimeLinesBgClr"=dword:2101248
"TimeLinesDfltClr"=dword:16752704
"TskBreakingLineClr"=dword:8404992

[Software\Teskel\Orvane\Fonts]
"FontCalDayTitleslfColor"=dword:16777215
"FontGenerallfColor"=dword:15790320
"FontGnrlUseAdvncd"=dword:0
"FontTskOverduelfColor"=dword:8421631
"UseShadowColor"=dword:3

[::Categories::]
"Category"="Holiday"
"FiltersFlag"=dword:6
"Color"=dword:-1
