CREATE VIEW Seen AS SELECT CO, Code AS Name, Number, Number + 1 AS Next FROM FuzzControl WHERE CO = '01'
GO
UPDATE Seen SET Number = Next WHERE Name = 'a ' DELETE S FROM Seen S JOIN FuzzControl F ON F.Code = S.Name INSERT INTO Seen (CO, Name) VALUES ('01', 'q')
UPDATE Seen SET Next = 1
