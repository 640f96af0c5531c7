SELECT a WHERE a LIKE '%' + :P + '[_]' ESCAPE '\' OR b NOT LIKE N'x'
