//-----------------------------------------------------------------------------
// Kestrel 3.1 V6, 8192 baud, in the legacy text layout. Written by hand by the
// Corvex authors as an example of an old definition; no such engine was ever built.
//
// A field is what stands between its sign of equality and the next semicolon, and
// fields count by their order, so no note may hold that sign or an opening brace.
//-----------------------------------------------------------------------------

//--------------------------------- HEADER ------------------------------------

{
	fDefFrmtVers                    =1.2;
	strDefVersion                   =Version 1.4;
	strDefTitle                     =Kestrel 3.1 V6;
	strAuthor                       =The Corvex authors;
	strEngine                       =3.1 V6;
	strYear                         =1991;
	strVINCode                      =T;
	strCodeMask                     =KST1;
	strComments                     =Kestrel 3.1 V6, 8192 baud, as an old definition. An example of our own making.;
	iBaud                           =8192;
	dwFlags                         =0x00000000;
	dwCSID                          =0x4B535431;
	btNumDumpRequests               =3;
	strCommandName                  =Data block 1;
	rgbtCommand                     =0xF4,0x57,0x01,0x00;
	iTotalBytesInCommand            =5;
	bChecksumCommand                =1;
	iNumBytesInPayload              =21;
	iNumBytesBeforePayload          =3;
	bMaster                         =1;
	bMonitor                        =1;
	iChainTo                        =-1;
	strCommandName                  =Data block 2;
	rgbtCommand                     =0xF4,0x57,0x01,0x02;
	iTotalBytesInCommand            =5;
	bChecksumCommand                =1;
	iNumBytesInPayload              =21;
	iNumBytesBeforePayload          =3;
	bMaster                         =0;
	bMonitor                        =0;
	iChainTo                        =-1;
	strCommandName                  =Silence other modules;
	rgbtCommand                     =0xF4,0x56,0x08,0xAE;
	iTotalBytesInCommand            =4;
	bChecksumCommand                =0;
	iNumBytesInPayload              =21;
	iNumBytesBeforePayload          =3;
	bMaster                         =0;
	bMonitor                        =0;
	iChainTo                        =-1;
}

//---------------------------------- DASH -------------------------------------

// Gauges and monitors do not come along in an import.
{
	dwItemType                      =6;
	strItemComments                 =The dash;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =1;
	btNumGauges                     =2;
	strIDsDisplayed                 =10,11;
	btNumMonitors                   =1;
	strMonsDisplayed                =10;
}

//--------------------------------- VALUES ------------------------------------

// Operation 0, raw number times factor plus offset.
{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =10;
	btByteNumber                    =1;
	btMessageNumber                 =1;
	dwItemSizeBits                  =16;
	dwOperation                     =0;
	dFactor                         =0.125000;
	dOffset                         =0.000000;
	strItemTitle                    =Engine Speed;
	strUnitLabel                    =rpm;
	dwAlarmHigh                     =36800;
	bAlarmHighENable                =1;
	dwAlarmLow                      =0;
	bAlarmLowEnable                 =0;
	iRangeHigh                      =40000;
	iRangeLow                       =0;
	iLookupTableIndex               =-1;
}

{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =11;
	btByteNumber                    =3;
	btMessageNumber                 =1;
	dwItemSizeBits                  =8;
	dwOperation                     =0;
	dFactor                         =1.000000;
	dOffset                         =0.000000;
	strItemTitle                    =Vehicle Speed;
	strUnitLabel                    =km/h;
	dwAlarmHigh                     =180;
	bAlarmHighENable                =1;
	dwAlarmLow                      =0;
	bAlarmLowEnable                 =0;
	iRangeHigh                      =200;
	iRangeLow                       =0;
	iLookupTableIndex               =-1;
}

{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =12;
	btByteNumber                    =4;
	btMessageNumber                 =1;
	dwItemSizeBits                  =8;
	dwOperation                     =0;
	dFactor                         =0.750000;
	dOffset                         =-40.000000;
	strItemTitle                    =Coolant Temperature;
	strUnitLabel                    =C;
	dwAlarmHigh                     =200;
	bAlarmHighENable                =1;
	dwAlarmLow                      =20;
	bAlarmLowEnable                 =1;
	iRangeHigh                      =255;
	iRangeLow                       =0;
	iLookupTableIndex               =-1;
}

// Operation 1, factor through raw number plus offset.
{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =13;
	btByteNumber                    =5;
	btMessageNumber                 =1;
	dwItemSizeBits                  =8;
	dwOperation                     =1;
	dFactor                         =120.000000;
	dOffset                         =0.500000;
	strItemTitle                    =Injector Pulse;
	strUnitLabel                    =ms;
	dwAlarmHigh                     =255;
	bAlarmHighENable                =0;
	dwAlarmLow                      =0;
	bAlarmLowEnable                 =0;
	iRangeHigh                      =10;
	iRangeLow                       =240;
	iLookupTableIndex               =-1;
}

// Operation 2, hexadecimal. Its limits come out as the digits read in tens, so that
// raw 153, in hexadecimal 0099, is a limit of 99.
{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =14;
	btByteNumber                    =6;
	btMessageNumber                 =1;
	dwItemSizeBits                  =16;
	dwOperation                     =2;
	dFactor                         =1.000000;
	dOffset                         =0.000000;
	strItemTitle                    =Calibration;
	strUnitLabel                    =hex;
	dwAlarmHigh                     =153;
	bAlarmHighENable                =0;
	dwAlarmLow                      =0;
	bAlarmLowEnable                 =0;
	iRangeHigh                      =153;
	iRangeLow                       =0;
	iLookupTableIndex               =-1;
}

// Operation 3, cut to a whole number.
{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =15;
	btByteNumber                    =8;
	btMessageNumber                 =1;
	dwItemSizeBits                  =8;
	dwOperation                     =3;
	dFactor                         =2.500000;
	dOffset                         =1.000000;
	strItemTitle                    =Idle Steps;
	strUnitLabel                    =steps;
	dwAlarmHigh                     =255;
	bAlarmHighENable                =0;
	dwAlarmLow                      =0;
	bAlarmLowEnable                 =0;
	iRangeHigh                      =255;
	iRangeLow                       =0;
	iLookupTableIndex               =-1;
}

// Operation 4, the raw number itself; its limits become percents of the range.
{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =16;
	btByteNumber                    =9;
	btMessageNumber                 =1;
	dwItemSizeBits                  =8;
	dwOperation                     =4;
	dFactor                         =1.000000;
	dOffset                         =0.000000;
	strItemTitle                    =Throttle;
	strUnitLabel                    =%;
	dwAlarmHigh                     =180;
	bAlarmHighENable                =0;
	dwAlarmLow                      =20;
	bAlarmLowEnable                 =0;
	iRangeHigh                      =220;
	iRangeLow                       =20;
	iLookupTableIndex               =-1;
}

// Operation 5, a letter of the calibration's name.
{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =17;
	btByteNumber                    =10;
	btMessageNumber                 =1;
	dwItemSizeBits                  =8;
	dwOperation                     =5;
	dFactor                         =1.000000;
	dOffset                         =0.000000;
	strItemTitle                    =Calibration Letter;
	strUnitLabel                    =char;
	dwAlarmHigh                     =57;
	bAlarmHighENable                =0;
	dwAlarmLow                      =48;
	bAlarmLowEnable                 =0;
	iRangeHigh                      =57;
	iRangeLow                       =48;
	iLookupTableIndex               =-1;
}

// A line between groups. It keeps its number and is nothing else.
{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =1;
	bVisible                        =1;
	dwUniqueID                      =18;
	btByteNumber                    =0;
	btMessageNumber                 =1;
	dwItemSizeBits                  =8;
	dwOperation                     =0;
	dFactor                         =0.000000;
	dOffset                         =0.000000;
	strItemTitle                    =Sensors;
	strUnitLabel                    =;
	dwAlarmHigh                     =255;
	bAlarmHighENable                =0;
	dwAlarmLow                      =0;
	bAlarmLowEnable                 =0;
	iRangeHigh                      =255;
	iRangeLow                       =0;
	iLookupTableIndex               =-1;
}

// Operation 6, through the lookup table with the number 40.
{
	dwItemType                      =1;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =19;
	btByteNumber                    =11;
	btMessageNumber                 =1;
	dwItemSizeBits                  =8;
	dwOperation                     =6;
	dFactor                         =1.000000;
	dOffset                         =0.000000;
	strItemTitle                    =Intake Temperature;
	strUnitLabel                    =C;
	dwAlarmHigh                     =240;
	bAlarmHighENable                =1;
	dwAlarmLow                      =0;
	bAlarmLowEnable                 =0;
	iRangeHigh                      =0;
	iRangeLow                       =255;
	iLookupTableIndex               =40;
}

//---------------------------------- BITS -------------------------------------

{
	dwItemType                      =2;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =30;
	btByteNumber                    =12;
	btMessageNumber                 =1;
	btBitNumber                     =0;
	strItemTitle                    =Closed Loop;
	bAlarmSetEnable                 =0;
	bAlarmNotSetEnable              =0;
	strBitSetTitle                  =Closed;
	strBitClearTitle                =Open;
}

{
	dwItemType                      =2;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =31;
	btByteNumber                    =12;
	btMessageNumber                 =1;
	btBitNumber                     =3;
	strItemTitle                    =Knock Retard;
	bAlarmSetEnable                 =1;
	bAlarmNotSetEnable              =0;
	strBitSetTitle                  =Retarded;
	strBitClearTitle                =None;
}

{
	dwItemType                      =2;
	strItemComments                 =;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =32;
	btByteNumber                    =13;
	btMessageNumber                 =1;
	btBitNumber                     =7;
	strItemTitle                    =Oil Pressure;
	bAlarmSetEnable                 =0;
	bAlarmNotSetEnable              =1;
	strBitSetTitle                  =Good;
	strBitClearTitle                =Low;
}

// Types 3 and 4 have the five common fields alone and are passed over.
{
	dwItemType                      =3;
	strItemComments                 =passed over;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =35;
}

{
	dwItemType                      =4;
	strItemComments                 =passed over;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =36;
}

//---------------------------- LOOKUP TABLES ----------------------------------

// Five points; what lies between them is a straight line.
{
	dwItemType                      =5;
	strItemComments                 =Intake air sensor, degrees Celsius by raw number.;
	bSeparator                      =0;
	bVisible                        =1;
	dwUniqueID                      =40;
	btDataType                      =2;
	wTableSize                      =256;
	wIndexSize                      =4;
	strTableName                    =Intake Sensor;
	dwReserved                      =0;
	dwReserved                      =0;
	pbtData                         =0,150.000000
64,70.000000
128,38.000000
192,10.000000
255,-40.000000
;
}

//------------------------------------ END ------------------------------------
