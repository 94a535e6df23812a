// Texts as macros hold them, of families that ask something of the stand-ins: casts, addresses of pointers, calls with
// a result, empty pointers compared, arrays read. They only have to compile, and keep their own layout.
// clang-format off
#include "kvApplication_c.h"
#include "kvInterfacePtr.h"
#include "math.h"

#define NULL 0

void texts( kvApplication_c *m_pKvApp, kvDocument_c *kvDoc, kvSketchManager_ptr kvSketchManager, kvModel_ptr kvModel )
{
    kvObjectType_e type5;
    kvObject *object5;
    kvDoc->GetObjectByHandle(L"2A", &type5, &object5);
    kvLine_ptr kvline5 = kvLine_ptr((kvLine_c*)object5);
    kvline5->put_Erased( true );

    kvHyperLink_ptr *hyperLink0 = kvline5->GetHyperLink();
    hyperLink0->put_Description(L"about");
    hyperLink0->SetFileOrWebPage( L"a.txt", L"a.txt");
    kvline5->SetHyperLink(hyperLink0);

    kvObjectPtrArray regionEntities1;
    regionEntities1.add( kvline5 );
    kvObjectPtrArray regions1;
    kvRegion_c* kvregion7;
    kvSketchManager->InsertRegion( regionEntities1, &regions1 );
    kvregion7 =(kvRegion_c*)regions1[0];
    kvregion7->put_Layer( L"0" );

    kvTextStyle_ptr kvtextstyle8;
    kvTextStyleManager_ptr TextStyleManager2;
    kvDoc->GetTextStyleManager(&TextStyleManager2);
    kvCreateObjectResult_e result2;
    kvString textStyleName2 = L"Notes";
    TextStyleManager2->GetTextStyle( textStyleName2, &kvtextstyle8);
    if( kvtextstyle8 == 0 )
    {
        TextStyleManager2->CreateTextStyle( textStyleName2, &kvtextstyle8,&result2 );
    }

    kvSheet_ptr PreSheet0;
    kvDoc->GetSheet(L"A" , &PreSheet0);
    if (NULL != PreSheet0)
        PreSheet0->put_Name(L"B");
    PreSheet0->put_PrintStyleTable( "plain.ctb" );

    kvBlockInstance_ptr kvblockinstance9;
    kvSketchManager->InsertBlock2(L"Door", 0, 0, 0, 1, 1, 1, 0, &kvblockinstance9 );
    kvObjectPtrArray attrInstances_3;
    kvblockinstance9->GetAttributeInstances( &attrInstances_3 );
    for (int i = 0; i < attrInstances_3.getSize(); ++i)
    {
        kvAttributeInstance_c* attrInstance_3 = (kvAttributeInstance_c*)attrInstances_3[i];
        kvString attrName_3;
        attrInstance_3->get_Name( &attrName_3 );
        if (attrName_3 == L"WIDTH")
            attrInstance_3->put_Value( L"900" );
    }

    kvPolyLine_ptr kvpolyline10;
    kvDoubleArray Coordinates4;
    Coordinates4.clear();
    Coordinates4.add(1.0);Coordinates4.add(2.0);
    kvSketchManager->InsertPolyline2D( Coordinates4, true, &kvpolyline10 );
    bool Success1;
    kvPolyLine_ptr splittedPolyline1;
    kvpolyline10->Split( 3, &splittedPolyline1, Success1 );
    kvpolyline10->SetVertexCoordinate( 0, 1.5, 2.5, Success1 );
    kvpolyline10->SetVertexCoordinate( 0, 1.5, 2.5, &Success1 );

    kvDoubleArray selPts, prop;                //selection points and properties
    kvSelectionManager_ptr selectionManager;
    kvDoc->GetSelectionManager(&selectionManager);
    kvObjectType_e retObjType;
    kvObject *obj;
    selectionManager->GetSelectedObject(kvSelectionSetType_Previous, 0, &retObjType, &obj);
    if (retObjType == kvCircleArcType)
    {
        kvCircleArc_c* kvcirclearc;
        kvcirclearc = static_cast<kvCircleArc_c*>(obj);
        double radius;
        kvcirclearc->get_Radius(&radius);
        kvCircleArc_ptr kvcirclearc11;
        if (abs(radius - prop[0*6 + 3]) < 0.1 )
            kvcirclearc11 = kvCircleArc_ptr(kvcirclearc);
    }

    kvApplicationOptions_c* appOption;
    m_pKvApp->GetApplicationOptions(&appOption);
    kvColor_ptr kvColor1;
    kvElementColor_e ElementOption;
    ElementOption = (kvElementColor_e)3;
    m_pKvApp->GetColorByIndex( 7, &kvColor1 );
    appOption->SetElementColor(ElementOption, kvColor1);

    kvReferenceImage_ptr kvreferenceimage12;
    kvSketchManager->InsertPicture( L"a.png", 0, 0, 0, 1, 0, &kvreferenceimage12 );
    kvreferenceimage12->put_Transparency( true );
    kvTransparency_ptr kvTransparency0;
    kvreferenceimage12->get_Transparency( &kvTransparency0 );
    kvreferenceimage12->put_Transparency( kvTransparency0 );

    kvAngularDimension_ptr kvangulardimension13;
    kvSketchManager->InsertAngularDimension2Line(kvline5, kvline5, Coordinates4, L"", &kvangulardimension13);
    kvGeneralDimension_ptr generalDimension5;
    kvangulardimension13->GetGeneralDimension( &generalDimension5 );
    kvDimensionStyleUserData_ptr dimensionStyle5;
    generalDimension5->GetDimensionStyleUserData( &dimensionStyle5 );
    kvDimensionStyleArrowsOptions_ptr arrowsOptions5;
    dimensionStyle5->GetDimensionStyleArrowsOptions( &arrowsOptions5 );
    arrowsOptions5->SetStartArrow( kvDimensionArrowType_Dot, L"" );

    kvTable_ptr kvtable14;
    kvSketchManager->InsertTable( 0, 0, 0, 2, 3, 8, (kvTableCellType_e)2, 20, true, &kvtable14 );
    long lRowCount6 = 0;
    kvtable14->TotalRowCount( &lRowCount6 );

    kvDrawingSupportFiles_ptr kvDrawingSupportFiles_0;
    m_pKvApp->GetDrawingSupportFiles( &kvDrawingSupportFiles_0 );
    kvStringArray sArrayDrawingFilesPath_0;
    sArrayDrawingFilesPath_0.add( L"C:\\Drawings" );
    kvDrawingSupportFiles_0->put_DrawingFilesPath( sArrayDrawingFilesPath_0 );
    kvDrawingSupportFiles_0->put_FontMappingFile( L"fonts.map" );
}
