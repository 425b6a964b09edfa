
[Software\Teskel\Orvane\Colors]
"ClrPopupClrBg"=dword:4202496
"ClrPopupCurr"=dword:8437760
"ClrPopupHighlight"=dword:8404992
"GeneralFontColor"=dword:15790320
"HighlightBgClr"=dword:8404992
"HighlightTextClr"=dword:16777215
"ShadowFontColor"=dword:0
"TimeLinesBgClr"=dword:2101248

[Software\Teskel\Orvane\Fonts]
"FontGenerallfColor"=dword:15790320
"FontGnrlUseAdvncd"=dword:0
"UseShadowColor"=dword:3

[::Categories::]
"Category"="Holiday"
"FiltersFlag"=dword:6
"Color"=dword:-1
