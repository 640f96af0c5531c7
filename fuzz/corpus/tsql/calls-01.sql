SELECT CAST(CONCAT([TranDate], ' ', [TranTime]) AS DATETIME) AS [TimeStamp], *
