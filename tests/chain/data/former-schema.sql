-- The schema of version 2 with a shop of four days, as the program of that time wrote it and pg_dump saved it.
CREATE SCHEMA norvane;
CREATE TABLE norvane.groups (
    shop integer NOT NULL,
    group_no integer NOT NULL,
    description text
);
CREATE TABLE norvane.plu_sales (
    shop integer NOT NULL,
    day date NOT NULL,
    plu text NOT NULL COLLATE pg_catalog."C",
    promo numeric NOT NULL,
    waste numeric NOT NULL,
    count1 numeric NOT NULL,
    value1 numeric NOT NULL,
    count2 numeric NOT NULL,
    value2 numeric NOT NULL,
    count3 numeric NOT NULL,
    value3 numeric NOT NULL,
    count4 numeric NOT NULL,
    value4 numeric NOT NULL,
    count5 numeric NOT NULL,
    value5 numeric NOT NULL
)
PARTITION BY RANGE (day);
CREATE TABLE norvane.plus (
    shop integer NOT NULL,
    plu text NOT NULL COLLATE pg_catalog."C",
    description text,
    group_no integer,
    price1 numeric,
    price2 numeric,
    price3 numeric,
    price4 numeric,
    price5 numeric
);
CREATE TABLE norvane.shops (
    shop integer NOT NULL,
    name text NOT NULL,
    folded_name text NOT NULL,
    folder_id uuid NOT NULL,
    first_published timestamp with time zone DEFAULT now() NOT NULL
);
CREATE VIEW norvane.plu_lines AS
 SELECT t.shop,
    s.name AS shop_name,
    t.day,
    t.plu,
    p.description,
    p.group_no,
    g.description AS group_name,
    ((((t.count1 + t.count2) + t.count3) + t.count4) + t.count5) AS quantity,
    ((((t.value1 + t.value2) + t.value3) + t.value4) + t.value5) AS takings
   FROM (((norvane.plu_sales t
     JOIN norvane.shops s ON ((s.shop = t.shop)))
     LEFT JOIN norvane.plus p ON (((p.shop = t.shop) AND (p.plu = t.plu))))
     LEFT JOIN norvane.groups g ON (((g.shop = t.shop) AND (g.group_no = p.group_no))));
CREATE VIEW norvane.best_sellers AS
 SELECT plu_lines.shop,
    plu_lines.shop_name,
    rank() OVER (PARTITION BY plu_lines.shop ORDER BY (sum(plu_lines.takings)) DESC) AS rank,
    plu_lines.plu,
    plu_lines.description,
    sum(plu_lines.quantity) AS quantity,
    round(sum(plu_lines.takings), 2) AS takings
   FROM norvane.plu_lines
  WHERE ((plu_lines.day >= (CURRENT_DATE - 29)) AND (plu_lines.day <= CURRENT_DATE))
  GROUP BY plu_lines.shop, plu_lines.shop_name, plu_lines.plu, plu_lines.description
 HAVING (sum(plu_lines.takings) <> (0)::numeric);
CREATE TABLE norvane.chain_version (
    version integer NOT NULL
);
CREATE TABLE norvane.financial_sales (
    shop integer NOT NULL,
    day date NOT NULL,
    line integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
)
PARTITION BY RANGE (day);
CREATE TABLE norvane.published_days (
    shop integer NOT NULL,
    day date NOT NULL,
    digest text NOT NULL,
    row_count bigint NOT NULL,
    published_at timestamp with time zone DEFAULT now() NOT NULL,
    kept boolean DEFAULT false NOT NULL
);
CREATE VIEW norvane.day_lines AS
 SELECT t.shop,
    s.name AS shop_name,
    t.day,
    t.quantity,
    t.takings,
    t.net_sales
   FROM (( SELECT u.shop,
            u.day,
            sum(u.quantity) AS quantity,
            sum(u.takings) AS takings,
            sum(u.net_sales) AS net_sales
           FROM ( SELECT plu_sales.shop,
                    plu_sales.day,
                    ((((plu_sales.count1 + plu_sales.count2) + plu_sales.count3) + plu_sales.count4) + plu_sales.count5) AS quantity,
                    ((((plu_sales.value1 + plu_sales.value2) + plu_sales.value3) + plu_sales.value4) + plu_sales.value5) AS takings,
                    NULL::numeric AS net_sales
                   FROM norvane.plu_sales
                UNION ALL
                 SELECT financial_sales.shop,
                    financial_sales.day,
                    NULL::numeric,
                    NULL::numeric,
                    financial_sales.value
                   FROM norvane.financial_sales
                  WHERE (financial_sales.line = 2)
                UNION ALL
                 SELECT published_days.shop,
                    published_days.day,
                    NULL::numeric,
                    NULL::numeric,
                    NULL::numeric
                   FROM norvane.published_days) u
          GROUP BY u.shop, u.day) t
     JOIN norvane.shops s ON ((s.shop = t.shop)));
CREATE TABLE norvane.employee_lines (
    shop integer NOT NULL,
    line integer NOT NULL,
    description text
);
CREATE TABLE norvane.employee_sales (
    shop integer NOT NULL,
    day date NOT NULL,
    employee integer NOT NULL,
    line integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
)
PARTITION BY RANGE (day);
CREATE TABLE norvane.employee_sales_2026_10 (
    shop integer NOT NULL,
    day date NOT NULL,
    employee integer NOT NULL,
    line integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
);
CREATE TABLE norvane.employee_sales_2026_11 (
    shop integer NOT NULL,
    day date NOT NULL,
    employee integer NOT NULL,
    line integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
);
CREATE TABLE norvane.employees (
    shop integer NOT NULL,
    employee integer NOT NULL,
    name text
);
CREATE TABLE norvane.financial_lines (
    shop integer NOT NULL,
    line integer NOT NULL,
    description text
);
CREATE TABLE norvane.financial_sales_2026_10 (
    shop integer NOT NULL,
    day date NOT NULL,
    line integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
);
CREATE TABLE norvane.financial_sales_2026_11 (
    shop integer NOT NULL,
    day date NOT NULL,
    line integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
);
CREATE TABLE norvane.mix_sales (
    shop integer NOT NULL,
    day date NOT NULL,
    mix integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
)
PARTITION BY RANGE (day);
CREATE TABLE norvane.mix_sales_2026_10 (
    shop integer NOT NULL,
    day date NOT NULL,
    mix integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
);
CREATE TABLE norvane.mix_sales_2026_11 (
    shop integer NOT NULL,
    day date NOT NULL,
    mix integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
);
CREATE TABLE norvane.mixes (
    shop integer NOT NULL,
    mix integer NOT NULL,
    description text
);
CREATE TABLE norvane.plu_sales_2026_10 (
    shop integer NOT NULL,
    day date NOT NULL,
    plu text NOT NULL COLLATE pg_catalog."C",
    promo numeric NOT NULL,
    waste numeric NOT NULL,
    count1 numeric NOT NULL,
    value1 numeric NOT NULL,
    count2 numeric NOT NULL,
    value2 numeric NOT NULL,
    count3 numeric NOT NULL,
    value3 numeric NOT NULL,
    count4 numeric NOT NULL,
    value4 numeric NOT NULL,
    count5 numeric NOT NULL,
    value5 numeric NOT NULL
);
CREATE TABLE norvane.plu_sales_2026_11 (
    shop integer NOT NULL,
    day date NOT NULL,
    plu text NOT NULL COLLATE pg_catalog."C",
    promo numeric NOT NULL,
    waste numeric NOT NULL,
    count1 numeric NOT NULL,
    value1 numeric NOT NULL,
    count2 numeric NOT NULL,
    value2 numeric NOT NULL,
    count3 numeric NOT NULL,
    value3 numeric NOT NULL,
    count4 numeric NOT NULL,
    value4 numeric NOT NULL,
    count5 numeric NOT NULL,
    value5 numeric NOT NULL
);
CREATE TABLE norvane.published_names (
    shop integer NOT NULL,
    table_name text NOT NULL,
    digest text NOT NULL,
    row_count bigint NOT NULL,
    published_at timestamp with time zone DEFAULT now() NOT NULL
);
ALTER TABLE norvane.shops ALTER COLUMN shop ADD GENERATED ALWAYS AS IDENTITY (
    SEQUENCE NAME norvane.shops_shop_seq
    START WITH 1
    INCREMENT BY 1
    NO MINVALUE
    NO MAXVALUE
    CACHE 1
);
CREATE VIEW norvane.shops_without_collection_yesterday AS
 SELECT s.shop,
    s.name AS shop_name,
    max(d.day) AS last_day,
    (CURRENT_DATE - max(d.day)) AS days_ago
   FROM (norvane.shops s
     LEFT JOIN norvane.published_days d ON ((d.shop = s.shop)))
  GROUP BY s.shop, s.name
 HAVING (COALESCE(bool_or((d.day = (CURRENT_DATE - 1))), false) = false);
CREATE VIEW norvane.takings_by_day AS
 SELECT day_lines.shop,
    day_lines.shop_name,
    day_lines.day,
    day_lines.quantity,
    round(day_lines.takings, 2) AS takings,
    round(day_lines.net_sales, 2) AS net_sales
   FROM norvane.day_lines;
CREATE VIEW norvane.takings_by_group AS
 SELECT plu_lines.shop,
    plu_lines.shop_name,
    plu_lines.day,
    plu_lines.group_no,
    plu_lines.group_name,
    sum(plu_lines.quantity) AS quantity,
    round(sum(plu_lines.takings), 2) AS takings
   FROM norvane.plu_lines
  GROUP BY plu_lines.shop, plu_lines.shop_name, plu_lines.day, plu_lines.group_no, plu_lines.group_name;
CREATE VIEW norvane.takings_by_plu AS
 SELECT plu_lines.shop,
    plu_lines.shop_name,
    plu_lines.day,
    plu_lines.plu,
    plu_lines.description,
    plu_lines.group_no,
    plu_lines.group_name,
    plu_lines.quantity,
    round(plu_lines.takings, 2) AS takings
   FROM norvane.plu_lines
  WHERE ((plu_lines.quantity <> (0)::numeric) OR (plu_lines.takings <> (0)::numeric));
CREATE VIEW norvane.takings_by_shop AS
 SELECT s.shop,
    s.name AS shop_name,
    min(d.day) AS first_day,
    max(d.day) AS last_day,
    count(d.day) AS days,
    sum(d.quantity) AS quantity,
    round(sum(d.takings), 2) AS takings,
    round(sum(d.net_sales), 2) AS net_sales
   FROM (norvane.shops s
     LEFT JOIN norvane.day_lines d ON ((d.shop = s.shop)))
  GROUP BY s.shop, s.name;
CREATE TABLE norvane.time_periods (
    shop integer NOT NULL,
    period integer NOT NULL,
    starts_at text,
    ends_at text
);
CREATE TABLE norvane.time_sales (
    shop integer NOT NULL,
    day date NOT NULL,
    period integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
)
PARTITION BY RANGE (day);
CREATE TABLE norvane.time_sales_2026_10 (
    shop integer NOT NULL,
    day date NOT NULL,
    period integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
);
CREATE TABLE norvane.time_sales_2026_11 (
    shop integer NOT NULL,
    day date NOT NULL,
    period integer NOT NULL,
    quantity numeric NOT NULL,
    value numeric NOT NULL
);
ALTER TABLE ONLY norvane.employee_sales ATTACH PARTITION norvane.employee_sales_2026_10 FOR VALUES FROM ('2026-10-01') TO ('2026-11-01');
ALTER TABLE ONLY norvane.employee_sales ATTACH PARTITION norvane.employee_sales_2026_11 FOR VALUES FROM ('2026-11-01') TO ('2026-12-01');
ALTER TABLE ONLY norvane.financial_sales ATTACH PARTITION norvane.financial_sales_2026_10 FOR VALUES FROM ('2026-10-01') TO ('2026-11-01');
ALTER TABLE ONLY norvane.financial_sales ATTACH PARTITION norvane.financial_sales_2026_11 FOR VALUES FROM ('2026-11-01') TO ('2026-12-01');
ALTER TABLE ONLY norvane.mix_sales ATTACH PARTITION norvane.mix_sales_2026_10 FOR VALUES FROM ('2026-10-01') TO ('2026-11-01');
ALTER TABLE ONLY norvane.mix_sales ATTACH PARTITION norvane.mix_sales_2026_11 FOR VALUES FROM ('2026-11-01') TO ('2026-12-01');
ALTER TABLE ONLY norvane.plu_sales ATTACH PARTITION norvane.plu_sales_2026_10 FOR VALUES FROM ('2026-10-01') TO ('2026-11-01');
ALTER TABLE ONLY norvane.plu_sales ATTACH PARTITION norvane.plu_sales_2026_11 FOR VALUES FROM ('2026-11-01') TO ('2026-12-01');
ALTER TABLE ONLY norvane.time_sales ATTACH PARTITION norvane.time_sales_2026_10 FOR VALUES FROM ('2026-10-01') TO ('2026-11-01');
ALTER TABLE ONLY norvane.time_sales ATTACH PARTITION norvane.time_sales_2026_11 FOR VALUES FROM ('2026-11-01') TO ('2026-12-01');
INSERT INTO norvane.chain_version VALUES (2);
INSERT INTO norvane.employee_sales_2026_11 VALUES (1, '2026-11-01', 1, 2, 4, 39.03);
INSERT INTO norvane.employee_sales_2026_11 VALUES (1, '2026-11-01', 1, 3, 0, 0);
INSERT INTO norvane.financial_sales_2026_11 VALUES (1, '2026-11-01', 1, 4, 50);
INSERT INTO norvane.financial_sales_2026_11 VALUES (1, '2026-11-01', 2, 3, 37.02);
INSERT INTO norvane.financial_sales_2026_11 VALUES (1, '2026-11-02', 2, 0, 0);
INSERT INTO norvane.groups VALUES (1, 1, 'Drinks');
INSERT INTO norvane.groups VALUES (1, 2, 'Food');
INSERT INTO norvane.mix_sales_2026_11 VALUES (1, '2026-11-01', 5, 2, 0);
INSERT INTO norvane.plu_sales_2026_10 VALUES (1, '2026-10-30', '0001', 0, 0, 1, 0.1, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO norvane.plu_sales_2026_10 VALUES (1, '2026-10-30', '0002', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO norvane.plu_sales_2026_10 VALUES (1, '2026-10-31', '0001', 0, 0, 2, 0.2, 0, 0, 0, 0, 0, 0, 1, 2.005);
INSERT INTO norvane.plu_sales_2026_11 VALUES (1, '2026-11-01', '0002', 0, 1, 3, 37.02, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO norvane.plu_sales_2026_11 VALUES (1, '2026-11-02', '0001', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO norvane.plu_sales_2026_11 VALUES (1, '2026-11-02', '0002', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO norvane.plus VALUES (1, '0001', 'Tea', 1, 1.5, NULL, NULL, NULL, NULL);
INSERT INTO norvane.plus VALUES (1, '0002', 'Pie', 2, 12.34, NULL, NULL, NULL, NULL);
INSERT INTO norvane.published_days VALUES (1, '2026-10-30', 'b86654f3e4bf4cdc912a0e1ff07bfb361e5f456b', 2, '2026-11-26 14:20:16.231206+00', false);
INSERT INTO norvane.published_days VALUES (1, '2026-10-31', '0d3e95984b280d697a7128c132b880e4659c8940', 1, '2026-11-26 14:20:16.231206+00', false);
INSERT INTO norvane.published_days VALUES (1, '2026-11-01', '86b5c95eb52db024d561e6abda31f48ebcac2038', 8, '2026-11-26 14:20:16.241134+00', false);
INSERT INTO norvane.published_days VALUES (1, '2026-11-02', '8345e80bfa9f69a61d22f6950a4f05182e7d25b3', 3, '2026-11-26 14:20:16.241134+00', false);
INSERT INTO norvane.published_names VALUES (1, 'plus', '2:088ddec8adfff6d374ee9a14a33e1887a924295e', 2, '2026-11-26 14:20:16.21982+00');
INSERT INTO norvane.published_names VALUES (1, 'groups', '2:19955cbbf326494cb4fab008bba12f39018483c1', 2, '2026-11-26 14:20:16.21982+00');
INSERT INTO norvane.published_names VALUES (1, 'employees', '2:3345524abf6bbe1809449224b5972c41790b6cf2', 0, '2026-11-26 14:20:16.21982+00');
INSERT INTO norvane.published_names VALUES (1, 'time_periods', '2:64cfda83423f7e60d7036168b482911852876e63', 1, '2026-11-26 14:20:16.21982+00');
INSERT INTO norvane.published_names VALUES (1, 'mixes', '2:3345524abf6bbe1809449224b5972c41790b6cf2', 0, '2026-11-26 14:20:16.21982+00');
INSERT INTO norvane.published_names VALUES (1, 'financial_lines', '2:3345524abf6bbe1809449224b5972c41790b6cf2', 0, '2026-11-26 14:20:16.21982+00');
INSERT INTO norvane.published_names VALUES (1, 'employee_lines', '2:3345524abf6bbe1809449224b5972c41790b6cf2', 0, '2026-11-26 14:20:16.21982+00');
INSERT INTO norvane.shops OVERRIDING SYSTEM VALUE VALUES (1, 'Corner Shop', 'corner shop', '3d87685f-8267-4b16-803f-a5e58b509a66', '2026-11-26 14:20:16.217232+00');
INSERT INTO norvane.time_periods VALUES (1, 1, '09:30', '12:00');
INSERT INTO norvane.time_sales_2026_11 VALUES (1, '2026-11-01', 1, 3, 37.02);
INSERT INTO norvane.time_sales_2026_11 VALUES (1, '2026-11-01', 2, 0, 0);
SELECT pg_catalog.setval('norvane.shops_shop_seq', 1, true);
ALTER TABLE ONLY norvane.employee_lines
    ADD CONSTRAINT employee_lines_pkey PRIMARY KEY (shop, line);
ALTER TABLE ONLY norvane.employee_sales
    ADD CONSTRAINT employee_sales_pkey PRIMARY KEY (shop, day, employee, line);
ALTER TABLE ONLY norvane.employee_sales_2026_10
    ADD CONSTRAINT employee_sales_2026_10_pkey PRIMARY KEY (shop, day, employee, line);
ALTER TABLE ONLY norvane.employee_sales_2026_11
    ADD CONSTRAINT employee_sales_2026_11_pkey PRIMARY KEY (shop, day, employee, line);
ALTER TABLE ONLY norvane.employees
    ADD CONSTRAINT employees_pkey PRIMARY KEY (shop, employee);
ALTER TABLE ONLY norvane.financial_lines
    ADD CONSTRAINT financial_lines_pkey PRIMARY KEY (shop, line);
ALTER TABLE ONLY norvane.financial_sales
    ADD CONSTRAINT financial_sales_pkey PRIMARY KEY (shop, day, line);
ALTER TABLE ONLY norvane.financial_sales_2026_10
    ADD CONSTRAINT financial_sales_2026_10_pkey PRIMARY KEY (shop, day, line);
ALTER TABLE ONLY norvane.financial_sales_2026_11
    ADD CONSTRAINT financial_sales_2026_11_pkey PRIMARY KEY (shop, day, line);
ALTER TABLE ONLY norvane.groups
    ADD CONSTRAINT groups_pkey PRIMARY KEY (shop, group_no);
ALTER TABLE ONLY norvane.mix_sales
    ADD CONSTRAINT mix_sales_pkey PRIMARY KEY (shop, day, mix);
ALTER TABLE ONLY norvane.mix_sales_2026_10
    ADD CONSTRAINT mix_sales_2026_10_pkey PRIMARY KEY (shop, day, mix);
ALTER TABLE ONLY norvane.mix_sales_2026_11
    ADD CONSTRAINT mix_sales_2026_11_pkey PRIMARY KEY (shop, day, mix);
ALTER TABLE ONLY norvane.mixes
    ADD CONSTRAINT mixes_pkey PRIMARY KEY (shop, mix);
ALTER TABLE ONLY norvane.plu_sales
    ADD CONSTRAINT plu_sales_pkey PRIMARY KEY (shop, day, plu);
ALTER TABLE ONLY norvane.plu_sales_2026_10
    ADD CONSTRAINT plu_sales_2026_10_pkey PRIMARY KEY (shop, day, plu);
ALTER TABLE ONLY norvane.plu_sales_2026_11
    ADD CONSTRAINT plu_sales_2026_11_pkey PRIMARY KEY (shop, day, plu);
ALTER TABLE ONLY norvane.plus
    ADD CONSTRAINT plus_pkey PRIMARY KEY (shop, plu);
ALTER TABLE ONLY norvane.published_days
    ADD CONSTRAINT published_days_pkey PRIMARY KEY (shop, day);
ALTER TABLE ONLY norvane.published_names
    ADD CONSTRAINT published_names_pkey PRIMARY KEY (shop, table_name);
ALTER TABLE ONLY norvane.shops
    ADD CONSTRAINT shops_folded_name_key UNIQUE (folded_name);
ALTER TABLE ONLY norvane.shops
    ADD CONSTRAINT shops_folder_id_key UNIQUE (folder_id);
ALTER TABLE ONLY norvane.shops
    ADD CONSTRAINT shops_pkey PRIMARY KEY (shop);
ALTER TABLE ONLY norvane.time_periods
    ADD CONSTRAINT time_periods_pkey PRIMARY KEY (shop, period);
ALTER TABLE ONLY norvane.time_sales
    ADD CONSTRAINT time_sales_pkey PRIMARY KEY (shop, day, period);
ALTER TABLE ONLY norvane.time_sales_2026_10
    ADD CONSTRAINT time_sales_2026_10_pkey PRIMARY KEY (shop, day, period);
ALTER TABLE ONLY norvane.time_sales_2026_11
    ADD CONSTRAINT time_sales_2026_11_pkey PRIMARY KEY (shop, day, period);
ALTER INDEX norvane.employee_sales_pkey ATTACH PARTITION norvane.employee_sales_2026_10_pkey;
ALTER INDEX norvane.employee_sales_pkey ATTACH PARTITION norvane.employee_sales_2026_11_pkey;
ALTER INDEX norvane.financial_sales_pkey ATTACH PARTITION norvane.financial_sales_2026_10_pkey;
ALTER INDEX norvane.financial_sales_pkey ATTACH PARTITION norvane.financial_sales_2026_11_pkey;
ALTER INDEX norvane.mix_sales_pkey ATTACH PARTITION norvane.mix_sales_2026_10_pkey;
ALTER INDEX norvane.mix_sales_pkey ATTACH PARTITION norvane.mix_sales_2026_11_pkey;
ALTER INDEX norvane.plu_sales_pkey ATTACH PARTITION norvane.plu_sales_2026_10_pkey;
ALTER INDEX norvane.plu_sales_pkey ATTACH PARTITION norvane.plu_sales_2026_11_pkey;
ALTER INDEX norvane.time_sales_pkey ATTACH PARTITION norvane.time_sales_2026_10_pkey;
ALTER INDEX norvane.time_sales_pkey ATTACH PARTITION norvane.time_sales_2026_11_pkey;
