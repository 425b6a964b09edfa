
[Software\Teskel\Orvane\Colors]
"ClrBreakingLineClr"=dword:13153440
"ClrPopupClrBg"=dword:16775408
"ClrPopupCurr"=dword:42495
"ClrPopupHighlight"=dword:9853992
"ClrStatusBusy"=dword:12607488
"ClrStatusFree"=dword:-1
"ClrStatusOutofoffice"=dword:8388736
"ClrStatusTentative"=dword:14717072
"GeneralFontColor"=dword:4202496
"HighlightBgClr"=dword:9853992
"HighlightTextClr"=dword:16777215
"SeperatorLineClr"=dword:13153440
"ShadowFontColor"=dword:13153440
"TimeLinesBgClr"=dword:15788256
"TimeLinesDfltClr"=dword:12615744
"TskBreakingLineClr"=dword:13153440

[Software\Teskel\Orvane\Fonts]
"FontCalDayTitleslfColor"=dword:8404992
"FontCalDayTitleslfWeight"=dword:700
"FontFaceToUse"="Tahoma"
"FontGnrlUseAdvncd"=dword:1
"FontTskOverduelfColor"=dword:192
"UseShadowColor"=dword:0

[::Categories::]
"Category"="Birthday"
"FiltersFlag"=dword:6
"Color"=dword:11823615
"Category"="Business"
"FiltersFlag"=dword:9
"Color"=dword:12607488
"Category"="Réunions"
"FiltersFlag"=dword:1
"Color"=dword:8388736
