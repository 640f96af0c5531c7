INSERT INTO t ( [a], b ) VALUES ( 'x', 1 ), (NULL, DEFAULT)
