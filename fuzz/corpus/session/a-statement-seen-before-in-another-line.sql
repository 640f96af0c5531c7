INSERT INTO CROProcessMst ( Code, [ProcessSeq], [ProcessCode], [Description] ) VALUES ( '01','10','Q','Later') ;
INSERT INTO CROProcessMst ( [CO], [ProcessSeq], [ProcessCode], [Description] ) VALUES ( '01','9','P','Sooner') ;

 RAISERROR('%d %s', '1', 1, '1', '1')
 MERGE @Rows T USING sys.columns C ON STUFF('1', '1', '1', '1') < COALESCE('1', '1', '1') WHEN MATCHED THEN DELETE;
GO
 RAISERROR('%d %s', '1', 1, '1', '1')
 MERGE @Rows T USING sys.columns C ON STUFF('1', '1', '1', '1') < COALESCE('1', '1', '1') WHEN MATCHED THEN DELETE;